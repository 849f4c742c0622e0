// The values of a report's table as the data formats write them.
#pragma once

#include "reports/forms/ReportDocument.h"

#include <cstdint>
#include <string>

namespace ptk {

// A value as text: days as YYYY-MM-DD, hours and money with two decimals, rates with all their decimals, true or false, texts unchanged.
// Empty for null.
[[nodiscard]] std::string CellText(CellType type, const Value& cell);

// Decimal hours rounded to whole minutes.
[[nodiscard]] std::int64_t WholeMinutes(float hours);

// Decimal hours as hours and minutes, rounded to whole minutes: "8:30", "-0:15". Empty for null.
[[nodiscard]] std::string ClockText(const Value& hours);

} // namespace ptk
