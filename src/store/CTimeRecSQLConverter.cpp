#include "store/CTimeRecSQLConverter.h"

#include "platform/ErrorNumbers.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

// Appends to `sql`, so that what is there when a failure comes stays there.
template <typename... Values>
void Append(std::string& sql, fmt::format_string<Values...> text, Values&&... values)
{
    sql += fmt::format(text, std::forward<Values>(values)...);
}

void BuildInsertSQL(std::string& sql, const TimeRecordRow& record)
{
    // Two blanks before SELECT: both pieces carry one.
    sql += "INSERT INTO TimeRecord ( EmployeeID, StartTime, EndTime ) ";
    Append(sql, " SELECT {}, ", record.EmployeeID);
    Append(sql, "#{}#, ", GeneralText(record.StartTime));
    Append(sql, "#{}#;", GeneralText(record.EndTime));
}

void BuildUpdateSQL(std::string& sql, const TimeRecordRow& record)
{
    sql += "UPDATE TimeRecord ";
    Append(sql, "SET TimeRecord.EmployeeID = {}, ", record.EmployeeID);
    Append(sql, "TimeRecord.StartTime = #{}#, ", GeneralText(record.StartTime));
    Append(sql, "TimeRecord.EndTime = #{}# ", GeneralText(record.EndTime));
    Append(sql, "WHERE ((TimeRecord.TimeRecordID = {}));", record.TimeRecordID);
}

// The columns say what goes; it is always the whole row.
void BuildDeleteSQL(std::string& sql, const TimeRecordRow& record)
{
    sql += "DELETE TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.ShiftDate, TimeRecord.StartTime, TimeRecord.EndTime "
           "FROM TimeRecord ";
    Append(sql, "WHERE ((TimeRecord.TimeRecordID = {})); ", record.TimeRecordID);
}

} // namespace

bool CTimeRecSQLConverter::ResetError()
{
    m_errorNumber = 0;
    return true;
}

std::string CTimeRecSQLConverter::ToSQL(const TimeRecordRow* thetimerecord)
{
    ResetError();
    if (thetimerecord == nullptr) {
        return "";
    }
    m_sqlstring.clear();
    switch (thetimerecord->ObjectState) {
    case state::New:
        Build(BuildInsertSQL, *thetimerecord, sqlerror::InsertFailed);
        break;
    case state::Changed:
        Build(BuildUpdateSQL, *thetimerecord, sqlerror::UpdateFailed);
        break;
    case state::Deleted:
        Build(BuildDeleteSQL, *thetimerecord, sqlerror::DeleteFailed);
        break;
    default:
        break;
    }
    return m_sqlstring;
}

void CTimeRecSQLConverter::Build(Builder builder, const TimeRecordRow& record, std::int32_t errorNumber)
{
    SucceedsOr(errorNumber, m_errorNumber, [&] { builder(m_sqlstring, record); });
}

std::string CTimeRecSQLConverter::BuildFetchSQL(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    return BuildFetchSQL(theemployeeid, thestarttime, theendtime, "");
}

std::string CTimeRecSQLConverter::BuildFetchSQL(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime, const char* then)
{
    std::string sql;
    SucceedsOr(sqlerror::FetchFailed, m_errorNumber, [&] {
        sql = "SELECT TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.StartTime, TimeRecord.EndTime "
              "From TimeRecord ";
        Append(sql, "Where ((TimeRecord.EmployeeID = {}) ", theemployeeid);
        Append(sql, "And ((TimeRecord.StartTime >= #{}#) ", GeneralText(thestarttime));
        Append(sql, "And (TimeRecord.EndTime <= #{}#))) ", GeneralText(theendtime));
        Append(sql, "ORDER BY TimeRecord.StartTime, TimeRecord.EndTime{};", then);
    });
    return sql;
}

} // namespace ptk
