// Work weeks: seven days each, beginning on a chosen weekday, independent of the pay period.
#pragma once

#include "model/check/Punch.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ptk {

class CEmployee;

inline constexpr std::int64_t kDaysPerWeek = 7;
inline constexpr std::int64_t kMinutesPerDay = 1440;
inline constexpr std::int64_t kDailyRegularMinutes = 480;
inline constexpr std::int64_t kWeeklyRegularMinutes = 2400;

struct WorkWeek
{
    DateTime from;                   // midnight of its first day
    std::int64_t minutes = 0;        // after the automatic deduction of each day, which can bring it below 0
    std::int64_t paidAsOvertime = 0; // the minutes above 8 hours of each of its days
    [[nodiscard]] std::int64_t Above40() const { return minutes > kWeeklyRegularMinutes ? minutes - kWeeklyRegularMinutes : 0; }
};

// The minutes of one calendar day: those of all shifts that start on it.
struct WorkDay
{
    DateTime day;             // midnight
    std::int64_t minutes = 0; // before the automatic deduction
    std::span<const Punch* const> shifts;
};

// The midnight after a day; at the calendar's end, which has none, its last second.
[[nodiscard]] DateTime MidnightAfter(DateTime day);

// Minutes as hours with two decimals, rounded as a time card rounds them: 20 minutes are "0.33".
[[nodiscard]] std::string HoursText(std::int64_t minutes);

// The first day, at midnight, of a day's week. firstWeekday: 0 Sunday to 6 Saturday. Weeks are cut at the calendar's first and last day.
[[nodiscard]] DateTime WeekStart(DateTime day, std::int32_t firstWeekday);

// The last day, at midnight, of a day's week.
[[nodiscard]] DateTime WeekLast(DateTime day, std::int32_t firstWeekday);

// The days on which a shift starts, in order; their shifts are parts of `punches`. REQUIRES: all punches are readable and ordered by start.
[[nodiscard]] std::vector<WorkDay> DaysOf(std::span<const Punch* const> punches);

// A day's minutes after the automatic deduction, where the employee has it; can be below 0.
[[nodiscard]] std::int64_t PaidMinutes(const WorkDay& day, const CEmployee& employee);

// The weeks in which these days lie, in order. REQUIRES: the days are in order.
[[nodiscard]] std::vector<WorkWeek> WeeksOf(const std::vector<WorkDay>& days, const CEmployee& employee, std::int32_t firstWeekday);

} // namespace ptk
