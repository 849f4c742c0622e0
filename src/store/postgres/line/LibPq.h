// The server's client library. It is loaded when a server is asked for: who keeps the books in a file neither needs it nor waits for it.
#pragma once

#include <libpq-fe.h>

namespace ptk {

// The functions that the program calls; they behave as the library documents them.
struct LibPq
{
    decltype(&PQconninfoParse) conninfoParse;
    decltype(&PQconninfoFree) conninfoFree;
    decltype(&PQfreemem) freemem;
    decltype(&PQconnectStartParams) connectStartParams;
    decltype(&PQconnectPoll) connectPoll;
    decltype(&PQconnectionNeedsPassword) connectionNeedsPassword;
    decltype(&PQfinish) finish;
    decltype(&PQstatus) status;
    decltype(&PQsocket) socket;
    decltype(&PQserverVersion) serverVersion;
    decltype(&PQparameterStatus) parameterStatus;
    decltype(&PQerrorMessage) errorMessage;
    decltype(&PQsetNoticeProcessor) setNoticeProcessor;
    decltype(&PQsetnonblocking) setnonblocking;
    decltype(&PQenterPipelineMode) enterPipelineMode;
    decltype(&PQexitPipelineMode) exitPipelineMode;
    decltype(&PQpipelineSync) pipelineSync;
    decltype(&PQsendQuery) sendQuery;
    decltype(&PQsendQueryParams) sendQueryParams;
    decltype(&PQsendPrepare) sendPrepare;
    decltype(&PQsendQueryPrepared) sendQueryPrepared;
    decltype(&PQsendDescribePrepared) sendDescribePrepared;
    decltype(&PQflush) flush;
    decltype(&PQconsumeInput) consumeInput;
    decltype(&PQisBusy) isBusy;
    decltype(&PQsetSingleRowMode) setSingleRowMode;
    decltype(&PQgetResult) getResult;
    decltype(&PQnotifies) notifies;
    decltype(&PQclear) clear;
    decltype(&PQresultStatus) resultStatus;
    decltype(&PQresultErrorField) resultErrorField;
    decltype(&PQntuples) ntuples;
    decltype(&PQnfields) nfields;
    decltype(&PQfname) fname;
    decltype(&PQftype) ftype;
    decltype(&PQgetvalue) getvalue;
    decltype(&PQgetlength) getlength;
    decltype(&PQgetisnull) getisnull;
    decltype(&PQputCopyData) putCopyData;
    decltype(&PQputCopyEnd) putCopyEnd;
};

// Loads the library at the first call. Raises Failure 14 where it is not installed or too old.
[[nodiscard]] const LibPq& Library();

} // namespace ptk
