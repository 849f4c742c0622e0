#include "store/postgres/line/LibPq.h"

#include "store/postgres/line/ServerFailure.h"

#include <dlfcn.h>

#include <string>

namespace ptk {

namespace {

constexpr const char* kLibrary = "libpq.so.5";

template <typename Function>
void Find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    if (function == nullptr) {
        throw ServerFailure(engine::CannotOpen, std::string("the server's client library is too old: it has no ") + name);
    }
}

LibPq Load()
{
    void* const library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL); // for as long as the program runs
    if (library == nullptr) {
        throw ServerFailure(engine::CannotOpen, std::string("the server's client library ") + kLibrary + " is not installed");
    }
    LibPq pq{};
    Find(library, "PQconninfoParse", pq.conninfoParse);
    Find(library, "PQconninfoFree", pq.conninfoFree);
    Find(library, "PQfreemem", pq.freemem);
    Find(library, "PQconnectStartParams", pq.connectStartParams);
    Find(library, "PQconnectPoll", pq.connectPoll);
    Find(library, "PQconnectionNeedsPassword", pq.connectionNeedsPassword);
    Find(library, "PQfinish", pq.finish);
    Find(library, "PQstatus", pq.status);
    Find(library, "PQsocket", pq.socket);
    Find(library, "PQserverVersion", pq.serverVersion);
    Find(library, "PQparameterStatus", pq.parameterStatus);
    Find(library, "PQerrorMessage", pq.errorMessage);
    Find(library, "PQsetNoticeProcessor", pq.setNoticeProcessor);
    Find(library, "PQsetnonblocking", pq.setnonblocking);
    Find(library, "PQenterPipelineMode", pq.enterPipelineMode);
    Find(library, "PQexitPipelineMode", pq.exitPipelineMode);
    Find(library, "PQpipelineSync", pq.pipelineSync);
    Find(library, "PQsendQuery", pq.sendQuery);
    Find(library, "PQsendQueryParams", pq.sendQueryParams);
    Find(library, "PQsendPrepare", pq.sendPrepare);
    Find(library, "PQsendQueryPrepared", pq.sendQueryPrepared);
    Find(library, "PQsendDescribePrepared", pq.sendDescribePrepared);
    Find(library, "PQflush", pq.flush);
    Find(library, "PQconsumeInput", pq.consumeInput);
    Find(library, "PQisBusy", pq.isBusy);
    Find(library, "PQsetSingleRowMode", pq.setSingleRowMode);
    Find(library, "PQgetResult", pq.getResult);
    Find(library, "PQnotifies", pq.notifies);
    Find(library, "PQclear", pq.clear);
    Find(library, "PQresultStatus", pq.resultStatus);
    Find(library, "PQresultErrorField", pq.resultErrorField);
    Find(library, "PQntuples", pq.ntuples);
    Find(library, "PQnfields", pq.nfields);
    Find(library, "PQfname", pq.fname);
    Find(library, "PQftype", pq.ftype);
    Find(library, "PQgetvalue", pq.getvalue);
    Find(library, "PQgetlength", pq.getlength);
    Find(library, "PQgetisnull", pq.getisnull);
    Find(library, "PQputCopyData", pq.putCopyData);
    Find(library, "PQputCopyEnd", pq.putCopyEnd);
    return pq;
}

} // namespace

const LibPq& Library()
{
    static const LibPq pq = Load();
    return pq;
}

} // namespace ptk
