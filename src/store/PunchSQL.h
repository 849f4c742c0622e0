// The time records that the check of a card looks at, in the engine's own words: of the employee `employee`.
#pragma once

namespace ptk::punchsql {

// What starts between two moments, both included. Answered by the index TimeRecordPeriod alone.
inline constexpr auto kStarting = "SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord "
                                  "WHERE EmployeeID = :employee AND StartTime BETWEEN :first AND :last";

// What a search by start passes over, or would have to look for in the whole history: shifts still open, backward or longer than a day, and
// starts that cannot be read. The condition is to the letter that of the index TimeRecordUnusual, which holds few rows; in a file without
// the index the employee's whole history is searched.
inline constexpr auto kUnusual = "SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = :employee AND "
                                 "CASE WHEN StartTime BETWEEN '0100-' AND ':' THEN "
                                 "datetime(StartTime, '+0 days') IS NOT NULLIF(StartTime, '1899-12-30 00:00:00') "
                                 "OR EndTime NOT BETWEEN StartTime AND datetime(StartTime, '+1 day') ELSE 1 END";

} // namespace ptk::punchsql
