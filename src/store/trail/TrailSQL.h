// The questions to the edit trail.
#pragma once

#include <string>

namespace ptk {

class Statement;
struct EngineWords;
struct TrailQuery;

namespace trailsql {

// The columns of the statement that TrailSql answers. Whatever another tool put there, all are numbers, or texts, or a null.
enum Column
{
    kId,
    kAt,
    kBy,
    kProgram,
    kStep,
    kTable,
    kRow,
    kAction,
    kBefore,
    kAfter,
    kEmployee,
    kReason
};

} // namespace trailsql

// The statement that answers a query, newest first. What it reads to the first entries does not grow with the trail where the query names
// an employee, a person, records, or a kind other than time records; else it reads from the newest entry on. `hasReasons`: whether the
// trail has the column Reason; without it, no entry has a reason.
[[nodiscard]] std::string TrailSql(const TrailQuery& query, const EngineWords& words, bool hasReasons);

// Binds all parameters of the statement that TrailSql answers.
void BindTrail(Statement& statement, const TrailQuery& query);

} // namespace ptk
