#include "model/check/WorkWeeks.h"

#include "model/CEmployee.h"
#include "model/CTimeRecord.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace ptk {

namespace {

// The number of the first day of the week in which `day` lies; it can lie before the calendar.
std::int64_t WeekStartNumber(DateTime day, std::int32_t firstWeekday)
{
    return day.DayNumber() - (day.Weekday() - firstWeekday + kDaysPerWeek) % kDaysPerWeek;
}

} // namespace

DateTime MidnightAfter(DateTime day)
{
    static const DateTime lastSecond(CalendarDate{9999, 12, 31}, TimeOfDay{23, 59, 59});
    return day.DayNumber() < DateTime::kLastDay ? DateTime::FromDay(day.DayNumber() + 1) : lastSecond;
}

std::string HoursText(std::int64_t minutes)
{
    return TwoDecimals(HoursOf(minutes));
}

DateTime WeekStart(DateTime day, std::int32_t firstWeekday)
{
    return DateTime::FromDay(std::max(WeekStartNumber(day, firstWeekday), DateTime::kFirstDay));
}

DateTime WeekLast(DateTime day, std::int32_t firstWeekday)
{
    return DateTime::FromDay(std::min(WeekStartNumber(day, firstWeekday) + kDaysPerWeek - 1, DateTime::kLastDay));
}

std::vector<WorkDay> DaysOf(std::span<const Punch* const> punches)
{
    std::vector<WorkDay> days;
    days.reserve(punches.size());
    std::int64_t current = 0;
    for (std::size_t i = 0; i < punches.size(); ++i) {
        const std::int64_t day = punches[i]->start->DayNumber();
        if (days.empty() || day != current) {
            current = day;
            days.push_back({DateTime::FromDay(day), 0, punches.subspan(i, 0)});
        }
        WorkDay& last = days.back();
        last.minutes += punches[i]->Minutes();
        last.shifts = {last.shifts.data(), last.shifts.size() + 1};
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
    weeks.reserve(days.size() / kDaysPerWeek + 2);
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
