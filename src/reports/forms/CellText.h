// The values of a report's table as the data formats write them.
#pragma once

#include "reports/forms/ReportDocument.h"

#include <cstdint>
#include <string>

namespace ptk {

// Days as YYYY-MM-DD, hours and money with two decimals, rates with all they have, true or false; texts as they are. Empty for null.
[[nodiscard]] std::string CellText(CellType type, const Value& cell);

// Of hours, the nearest ones.
[[nodiscard]] std::int64_t WholeMinutes(float hours);

// "8:30", "-0:15".
[[nodiscard]] std::string MinutesText(std::int64_t minutes);

// Hours as hours and minutes, to the nearest minute: "8:30", "-0:15". Empty for null.
[[nodiscard]] std::string ClockText(const Value& hours);

} // namespace ptk
