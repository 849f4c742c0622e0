#include "store/CTimeRecSQLConverter.h"

#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/StoreErrors.h"

#include <fmt/format.h>

namespace ptk {

namespace {

// Appends to `sql`; what is in it when a failure comes stays there.
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

void BuildFetch(std::string& sql, const TimeRecordFetch& fetch)
{
    sql += "SELECT TimeRecord.TimeRecordID, TimeRecord.EmployeeID, TimeRecord.StartTime, TimeRecord.EndTime "
           "From TimeRecord ";
    Append(sql, "Where ((TimeRecord.EmployeeID = {}) ", fetch.employeeID);
    Append(sql, "And ((TimeRecord.StartTime >= #{}#) ", GeneralText(fetch.from));
    Append(sql, "And (TimeRecord.EndTime <= #{}#))) ", GeneralText(fetch.to));
    Append(sql, "ORDER BY TimeRecord.StartTime, TimeRecord.EndTime{};", fetch.then);
}

// Writes the statement for the record's state; nothing for a state without one.
void Build(std::string& sql, const TimeRecordRow& record)
{
    switch (record.ObjectState) {
    case state::New:
        return BuildInsertSQL(sql, record);
    case state::Changed:
        return BuildUpdateSQL(sql, record);
    case state::Deleted:
        return BuildDeleteSQL(sql, record);
    default:
        return;
    }
}

std::int32_t ErrorOf(std::int32_t state)
{
    switch (state) {
    case state::New:
        return sqlerror::InsertFailed;
    case state::Changed:
        return sqlerror::UpdateFailed;
    default:
        return sqlerror::DeleteFailed;
    }
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
    SucceedsOr(ErrorOf(thetimerecord->ObjectState), m_errorNumber, [&] { Build(m_sqlstring, *thetimerecord); });
    return m_sqlstring;
}

std::string CTimeRecSQLConverter::BuildFetchSQL(std::int32_t theemployeeid, DateTime thestarttime, DateTime theendtime)
{
    std::string sql;
    SucceedsOr(sqlerror::FetchFailed, m_errorNumber, [&] { BuildFetch(sql, {theemployeeid, thestarttime, theendtime}); });
    return sql;
}

std::string WholeStatement(const TimeRecordRow& record)
{
    std::string sql;
    Build(sql, record);
    return sql;
}

std::string WholeFetch(const TimeRecordFetch& fetch)
{
    std::string sql;
    BuildFetch(sql, fetch);
    return sql;
}

} // namespace ptk
