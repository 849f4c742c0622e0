// The time records that the check of a card looks at, in the engine's own words: of the employee `employee`.
#pragma once

namespace ptk::punchsql {

// What starts between two moments, both included, in order. Answered by the index TimeRecordPeriod alone.
inline constexpr auto kStarting = "SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord "
                                  "WHERE EmployeeID = :employee AND StartTime BETWEEN :first AND :last ORDER BY StartTime, EndTime";

// All that a search by start passes over or would have to look for in the whole history: shifts still open, backward, longer than a day, or
// of times that cannot be read. The condition is to the letter that of the index TimeRecordUnusual, which holds few rows; a file without
// the index is searched through the employee's whole history. The last column says whether the card's fetch, of the bounds `from` and
// `end`, takes the row: only the engine knows how it compares what is no time.
inline constexpr auto kUnusual = "SELECT TimeRecordID, StartTime, EndTime, (StartTime >= :from AND EndTime <= :end) IS TRUE "
                                 "FROM TimeRecord WHERE EmployeeID = :employee AND "
                                 "CASE WHEN StartTime GLOB '[0-9]*' AND EndTime GLOB '[0-9]*' THEN "
                                 "StartTime < '0100-01-01' OR StartTime = '1899-12-30 00:00:00' "
                                 "OR datetime(StartTime, '+0 days') IS NOT StartTime OR datetime(EndTime, '+0 days') IS NOT EndTime "
                                 "OR julianday(EndTime) - julianday(StartTime) NOT BETWEEN 0 AND 1 "
                                 "ELSE 1 END";

} // namespace ptk::punchsql
