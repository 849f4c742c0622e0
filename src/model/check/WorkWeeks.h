// Work weeks: seven days each from a chosen weekday on, whatever the pay period.
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
    std::int64_t minutes = 0;        // by the day rules of the card; automatic deduction can bring it below 0
    std::int64_t paidAsOvertime = 0; // what is above 8 hours on its days
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
[[nodiscard]] DateTime EndOfDay(DateTime day);

// Hours with two decimals, as a time card shows its own: of a single, so 20 minutes are "0.33".
[[nodiscard]] std::string HoursText(std::int64_t minutes);

// Both days midnight; the week's first weekday is 0 (Sunday) to 6. Weeks are cut at the calendar's first and last day.
[[nodiscard]] DateTime WeekStart(DateTime day, std::int32_t firstWeekday);

// The week's last day.
[[nodiscard]] DateTime WeekLast(DateTime day, std::int32_t firstWeekday);

// The days on which a shift starts, in order; their shifts are parts of `punches`, which stand by start, all of them readable.
[[nodiscard]] std::vector<WorkDay> DaysOf(std::span<const Punch* const> punches);

// What is left of a day's minutes after the automatic deduction, where the employee has it; can be below 0.
[[nodiscard]] std::int64_t PaidMinutes(const WorkDay& day, const CEmployee& employee);

// The weeks in which one of these days lies, in order.
[[nodiscard]] std::vector<WorkWeek> WeeksOf(const std::vector<WorkDay>& days, const CEmployee& employee, std::int32_t firstWeekday);

} // namespace ptk
