// The hours of a card day by day, as a picture shows them and a screen reader reads them.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

struct CardCheck;

// A day, or, behind the days of a work week, what the whole week comes to, its days outside the period included.
struct HoursColumn
{
    bool isWeek = false;
    std::string above;         // the figure: "9.50", empty for a day without a shift
    std::string name;          // "Mo", "Week"
    std::string day;           // "3/5", the first one of a week
    std::string text;          // all of it in words
    std::int64_t regular = 0;  // minutes, of a day only and not below 0
    std::int64_t overtime = 0; // minutes
};

// Every day of the period and every further day on which a shift of the card starts, an open one later on; of a period longer than a year
// the latter days alone. firstWeekday: of the work weeks, 0 Sunday to 6 Saturday.
[[nodiscard]] std::vector<HoursColumn> HoursColumns(const CardCheck& check, const PayPeriod& period, std::int32_t firstWeekday);

} // namespace ptk
