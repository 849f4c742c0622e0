// Queries for the time records that the check of a card looks at.
#pragma once

#include "store/engine/EngineWords.h"

namespace ptk::punchsql {

// The columns of Starting, Unusual, Of and OfMany, in this order; the last by OfMany alone.
enum Column
{
    kId,
    kStart,
    kEnd,
    kEmployee
};

// The time records that start from :first to :last, both included, of the employees that the condition `whose` names. Answered by the index
// TimeRecordPeriod alone.
[[nodiscard]] inline std::string Starting(std::string_view whose)
{
    return fmt::format("SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord WHERE {} AND StartTime BETWEEN :first AND :last", whose);
}

// The time records that Starting passes over, or would have to look for in the whole history: shifts still open, backward or longer than a
// day, and starts that cannot be read. The index TimeRecordUnusual holds these few rows; in a database without it the employee's whole
// history is searched.
[[nodiscard]] inline std::string Unusual(std::string_view whose, const EngineWords& words)
{
    return fmt::format("SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord WHERE {} AND {}", whose, words.unusualPunch);
}

// What Starting and Unusual ask for, in one query. A row may come twice.
[[nodiscard]] inline std::string Of(std::string_view whose, const EngineWords& words)
{
    return Starting(whose) + " UNION ALL " + Unusual(whose, words);
}

inline constexpr auto kOne = "EmployeeID = :employee";

// The ends of the ten newest shifts before the moment :start that last at least a minute and began within two hours of the minute :minute
// of the day, also over midnight. Answered by the index TimeRecordPeriod, from the moment backwards.
[[nodiscard]] inline std::string EarlierEnds(const EngineWords& words)
{
    return fmt::format("SELECT EndTime FROM TimeRecord WHERE EmployeeID = :employee AND StartTime < :start AND {0} AND {1} < {2} AND "
                       "({3} - :minute + 2160) % 1440 BETWEEN 600 AND 840 ORDER BY StartTime DESC, EndTime DESC LIMIT 10",
                       words.readablePunch, FilledIn(words.wholeMinute, "StartTime"), FilledIn(words.wholeMinute, "EndTime"),
                       FilledIn(words.minuteOfDay, "StartTime"));
}

// The employees who have records on the card of the days from :first to the midnight :end, those that start from :end on left out.
[[nodiscard]] inline std::string WithShiftsIn(const EngineWords& words)
{
    return fmt::format("SELECT EmployeeID FROM Employee WHERE EXISTS (SELECT 1 FROM TimeRecord WHERE TimeRecord.EmployeeID = "
                       "Employee.EmployeeID AND StartTime >= :first AND StartTime < :end AND EndTime <= :end AND {})",
                       words.readablePunch);
}

// The employees who have records that start from :first to :last, both included.
inline constexpr auto kWithStartsIn =
    "SELECT EmployeeID FROM Employee WHERE EXISTS (SELECT 1 FROM TimeRecord WHERE TimeRecord.EmployeeID = "
    "Employee.EmployeeID AND StartTime BETWEEN :first AND :last)";

// The EmployeeIDs, of known employees or not, that have a record which starts from :first to :last, both included, or one that Unusual
// finds; a null where any record names nobody. It goes from one number to the next by the index TimeRecordPeriod.
[[nodiscard]] inline std::string EmployeesWithRecords(const EngineWords& words)
{
    return fmt::format("WITH RECURSIVE Named (Number) AS (SELECT MIN(EmployeeID) FROM TimeRecord UNION ALL SELECT (SELECT MIN(EmployeeID) "
                       "FROM TimeRecord WHERE EmployeeID > Number) FROM Named WHERE Number IS NOT NULL) "
                       "SELECT Number FROM Named WHERE EXISTS (SELECT 1 FROM TimeRecord WHERE EmployeeID = Number AND StartTime BETWEEN "
                       ":first AND :last) OR EXISTS (SELECT 1 FROM TimeRecord WHERE EmployeeID = Number AND {0}) "
                       "UNION ALL SELECT NULL WHERE EXISTS (SELECT 1 FROM TimeRecord WHERE EmployeeID IS NULL)",
                       words.unusualPunch);
}

// What Of asks for, in one question for all the employees :employees. REQUIRES: words.amongEmployees is not empty.
[[nodiscard]] inline std::string OfMany(const EngineWords& words)
{
    const std::string select =
        "SELECT TimeRecordID, StartTime, EndTime, EmployeeID FROM TimeRecord WHERE " + FilledIn(words.amongEmployees, "EmployeeID");
    return fmt::format("{0} AND StartTime BETWEEN :first AND :last UNION ALL {0} AND {1}", select, words.unusualPunch);
}

} // namespace ptk::punchsql
