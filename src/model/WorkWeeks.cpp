#include "model/WorkWeeks.h"

#include "model/CEmployee.h"
#include "model/CTimeRecord.h"
#include "platform/Text.h"

#include <algorithm>

namespace ptk {

namespace {

// Day 0 of the calendar, 30 December 1899, was a Saturday.
constexpr std::int64_t kWeekdayOfDayZero = 6;

const std::int64_t kFirstDay = DateTime(CalendarDate{100, 1, 1}).DayNumber();
const std::int64_t kLastDay = DateTime(CalendarDate{9999, 12, 31}).DayNumber();

DateTime Midnight(std::int64_t dayNumber)
{
    return DateTime().AddDays(dayNumber);
}

// The remainder that is never negative.
std::int64_t Modulo(std::int64_t value, std::int64_t divisor)
{
    return (value % divisor + divisor) % divisor;
}

std::int64_t WeekStartNumber(std::int64_t day, std::int32_t firstWeekday)
{
    return day - Modulo(day + kWeekdayOfDayZero - firstWeekday, kDaysPerWeek);
}

} // namespace

DateTime EndOfDay(DateTime day)
{
    static const DateTime lastSecond(CalendarDate{9999, 12, 31}, TimeOfDay{23, 59, 59});
    return day.DayNumber() < kLastDay ? Midnight(day.DayNumber() + 1) : lastSecond;
}

std::string HoursText(std::int64_t minutes)
{
    return TwoDecimals(HoursOf(minutes));
}

DateTime WeekStart(DateTime day, std::int32_t firstWeekday)
{
    return Midnight(std::max(WeekStartNumber(day.DayNumber(), firstWeekday), kFirstDay));
}

DateTime WeekLast(DateTime day, std::int32_t firstWeekday)
{
    return Midnight(std::min(WeekStartNumber(day.DayNumber(), firstWeekday) + kDaysPerWeek - 1, kLastDay));
}

std::vector<WorkDay> DaysOf(std::span<const Punch* const> punches)
{
    std::vector<WorkDay> days;
    days.reserve(punches.size());
    for (auto first = punches.begin(); first != punches.end();) {
        const std::int64_t day = (*first)->start->DayNumber();
        auto last = first;
        std::int64_t minutes = 0;
        for (; last != punches.end() && (*last)->start->DayNumber() == day; ++last) {
            minutes += (*last)->Minutes();
        }
        days.push_back({Midnight(day), minutes, {first, last}});
        first = last;
    }
    return days;
}

std::int64_t PaidMinutes(const WorkDay& day, const CEmployee& employee)
{
    return employee.AutoDeduct() ? day.minutes - employee.AutoDeductLunchLength() - employee.AutoDeductBreakLength() : day.minutes;
}

std::vector<WorkWeek> WeeksOf(const std::vector<WorkDay>& days, const CEmployee& employee, std::int32_t firstWeekday)
{
    std::vector<WorkWeek> weeks;
    for (const WorkDay& day : days) {
        const DateTime from = WeekStart(day.day, firstWeekday);
        if (weeks.empty() || weeks.back().from != from) {
            weeks.push_back({from});
        }
        const std::int64_t paid = PaidMinutes(day, employee);
        weeks.back().minutes += paid;
        weeks.back().paidAsOvertime += std::max<std::int64_t>(paid - kDailyRegularMinutes, 0);
    }
    return weeks;
}

} // namespace ptk
