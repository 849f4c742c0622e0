// The hours of a card for each day: a picture shows them and a screen reader reads them.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

struct CardCheck;

// One day, or one whole work week. A week stands behind its days and counts also those outside the period.
struct HoursColumn
{
    bool isWeek = false;
    std::string above;         // the figure: "9.50", empty for a day without a shift
    std::string name;          // "Mo", "Week"
    std::string day;           // "3/5"; the first day of a week
    std::string text;          // the whole column in words
    std::int64_t regular = 0;  // minutes; 0 for a week, never below 0
    std::int64_t overtime = 0; // minutes; 0 for a week
};

// Every day of the period, and every further day on which a shift of the card starts: an open shift can start later. For a period longer
// than a year only the days on which a shift starts. firstWeekday: the first day of the work week, 0 Sunday to 6 Saturday.
[[nodiscard]] std::vector<HoursColumn> HoursColumns(const CardCheck& check, const PayPeriod& period, std::int32_t firstWeekday);

} // namespace ptk
