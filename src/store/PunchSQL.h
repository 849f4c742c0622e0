// The time records that the check of a card looks at, of the employee `employee`.
#pragma once

#include "store/engine/EngineWords.h"

namespace ptk::punchsql {

// What starts between two moments, both included. Answered by the index TimeRecordPeriod alone.
inline constexpr auto kStarting = "SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord "
                                  "WHERE EmployeeID = :employee AND StartTime BETWEEN :first AND :last";

// What that search passes over, or would have to look for in the whole history: shifts still open, backward or longer than a day, and
// starts that cannot be read. The index TimeRecordUnusual holds them, few rows; in a database without it the employee's whole history is
// searched.
[[nodiscard]] inline std::string Unusual(const EngineWords& words)
{
    return fmt::format("SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = :employee AND {}", words.unusualPunch);
}

} // namespace ptk::punchsql
