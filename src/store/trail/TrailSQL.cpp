#include "store/trail/TrailSQL.h"

#include "platform/text/Joined.h"
#include "platform/text/Text.h"
#include "store/engine/EngineWords.h"
#include "store/engine/Statement.h"
#include "store/trail/TrailReader.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kColumns = "ChangeID, ChangedAt, ChangedBy, Program, Step, TableName, RowID, Action, Before, After, "
                                 "COALESCE(EmployeeAfter, EmployeeBefore), ";

// An employee's entries are asked for in two halves: each finds an entry once, by its own index and in the order of the numbers.
constexpr const char* kAfterOf = "EmployeeAfter = CAST(:employee AS INTEGER)";
constexpr const char* kBeforeOf = "EmployeeBefore = CAST(:employee AS INTEGER) AND EmployeeBefore IS DISTINCT FROM EmployeeAfter";

// The conditions of the partial indexes stand here to the letter.
const char* ConditionOf(TrailKind kind)
{
    switch (kind) {
    case TrailKind::TimeRecords:
        return "TableName = 'TimeRecord'";
    case TrailKind::People:
        return "TableName IS DISTINCT FROM 'TimeRecord' AND TableName = 'Employee'";
    case TrailKind::Companies:
        return "TableName IS DISTINCT FROM 'TimeRecord' AND TableName = 'Company'";
    case TrailKind::Options:
        return "TableName IS DISTINCT FROM 'TimeRecord' AND TableName IN ('_System', '_CheckLimits')";
    case TrailKind::Paydays:
        return "TableName IS DISTINCT FROM 'TimeRecord' AND TableName = '_Payday'";
    default:
        return "TableName IS DISTINCT FROM 'TimeRecord' AND TableName IS NULL";
    }
}

std::string NumberList(const std::vector<std::int64_t>& numbers)
{
    return numbers.empty() ? "NULL" : Joined(numbers, ",");
}

std::string Conditions(const TrailQuery& query)
{
    std::string sql = "ChangeID > :newer";
    sql += query.olderThan ? " AND ChangeID < :older" : "";
    sql += query.from ? " AND ChangedAt >= :from" : "";
    sql += query.to ? " AND ChangedAt < :behind" : "";
    sql += query.step ? " AND Step = :step" : "";
    if (query.person) {
        sql += query.person->empty() ? " AND COALESCE(ChangedBy, '') = ''" : " AND ChangedBy = :person";
    }
    sql += query.kind ? std::string(" AND ") + ConditionOf(*query.kind) : "";
    sql += query.action.empty() ? "" : " AND Action = :action";
    sql += query.records ? fmt::format(" AND TableName = 'TimeRecord' AND RowID IN ({})", NumberList(*query.records)) : "";
    sql += query.recordsIn ? " AND (TableName = 'Employee' OR TableName = 'TimeRecord' AND RowID IN (SELECT Record FROM InDays))" : "";
    return sql;
}

// An entry tells only the columns that changed: one moment in the days is enough to find the record by it.
std::string TellsMomentInDays(const EngineWords& words)
{
    std::string sql;
    for (const char* side : {"Before", "After"}) {
        for (const char* column : {"StartTime", "EndTime"}) {
            sql += fmt::format("{}{} BETWEEN :first AND :last", sql.empty() ? "" : " OR ", FilledIn(words.jsonField, side, column));
        }
    }
    return '(' + sql + ')';
}

// The keys of the employee's records that lie in the days now, and of those that did.
std::string RecordsInDays(const EngineWords& words)
{
    const std::string did = "UNION SELECT RowID FROM _Change WHERE TableName = 'TimeRecord' AND " + TellsMomentInDays(words) + " AND ";
    return fmt::format("WITH InDays (Record) AS MATERIALIZED (SELECT TimeRecordID FROM TimeRecord WHERE EmployeeID = "
                       "CAST(:employee AS INTEGER) AND ({} OR {}) {}{} {}{}) ",
                       FilledIn(words.inDays, "StartTime"), FilledIn(words.inDays, "EndTime"), did, kAfterOf, did, kBeforeOf);
}

std::string Day(DateTime date)
{
    return FormatDateTime(date, "yyyy-mm-dd");
}

// A moment as text that lies behind every time of that day, by its "~".
std::string Behind(DateTime date)
{
    return Day(date) + "~";
}

void BindDays(Statement& statement, const TrailQuery& query)
{
    if (query.from) {
        statement.Bind("from", Day(*query.from));
    }
    if (query.to) {
        statement.Bind("behind", Behind(*query.to));
    }
    if (query.recordsIn) {
        statement.Bind("first", Day(query.recordsIn->first));
        statement.Bind("last", Behind(query.recordsIn->last));
    }
}

void BindNumber(Statement& statement, const char* name, const std::optional<std::int64_t>& number)
{
    if (number) {
        statement.Bind(name, std::to_string(*number));
    }
}

} // namespace

std::string TrailSql(const TrailQuery& query, const EngineWords& words, bool hasReasons)
{
    const std::string select =
        fmt::format("SELECT {}{} FROM _Change WHERE {}", kColumns, hasReasons ? "Reason" : "NULL", Conditions(query));
    const std::string end = fmt::format(" ORDER BY 1 DESC LIMIT {}", query.most);
    if (!query.employee) {
        return select + end;
    }
    return (query.recordsIn ? RecordsInDays(words) : "") + select + " AND " + kAfterOf + " UNION ALL " + select + " AND " + kBeforeOf + end;
}

void BindTrail(Statement& statement, const TrailQuery& query)
{
    BindNumber(statement, "newer", query.newerThan);
    BindNumber(statement, "older", query.olderThan);
    BindNumber(statement, "employee", query.employee);
    BindNumber(statement, "step", query.step);
    BindDays(statement, query);
    if (query.person && !query.person->empty()) {
        statement.Bind("person", *query.person);
    }
    if (!query.action.empty()) {
        statement.Bind("action", query.action);
    }
}

} // namespace ptk
