#include "office/card/HoursColumns.h"

#include "model/check/CardCheck.h"
#include "office/card/CardTexts.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::int64_t kMostDays = 366; // of a period that is shown day by day
constexpr auto kWeek = "Week";

std::string ShortDay(DateTime day)
{
    return FormatDateTime(day, "m/d");
}

HoursColumn DayColumn(DateTime day, const DayMinutes* worked)
{
    HoursColumn column;
    column.name = WeekdayName(day).substr(0, 2);
    column.day = ShortDay(day);
    column.text = WeekdayName(day) + ' ' + DayText(day) + ": ";
    if (worked == nullptr) {
        column.text += "no shift";
        return column;
    }
    column.above = HoursText(worked->regular + worked->overtime);
    column.regular = std::max<std::int64_t>(worked->regular, 0);
    column.overtime = worked->overtime;
    column.text +=
        fmt::format("{} hours, {} regular and {} overtime", column.above, HoursText(worked->regular), HoursText(worked->overtime));
    return column;
}

HoursColumn WeekColumn(const WorkWeek& week)
{
    return {true,
            HoursText(week.minutes),
            kWeek,
            ShortDay(week.from),
            fmt::format("Week from {}: {} hours, {} above 40, {} paid as overtime", DayText(week.from), HoursText(week.minutes),
                        HoursText(week.Above40()), HoursText(week.paidAsOvertime)),
            0,
            0};
}

std::vector<DateTime> DaysToShow(const CardCheck& check, const PayPeriod& period)
{
    std::vector<DateTime> days;
    for (const DayMinutes& worked : check.days) {
        days.push_back(worked.day);
    }
    if (DaysBetween(period.from, period.to) < kMostDays) {
        const std::size_t worked = days.size();
        for (DateTime day = period.from; day <= period.to; day = day.AddDays(1)) {
            days.push_back(day);
        }
        std::inplace_merge(days.begin(), days.begin() + static_cast<std::ptrdiff_t>(worked), days.end());
        days.erase(std::unique(days.begin(), days.end()), days.end());
    }
    return days;
}

} // namespace

std::vector<HoursColumn> HoursColumns(const CardCheck& check, const PayPeriod& period, std::int32_t firstWeekday)
{
    std::vector<HoursColumn> columns;
    auto worked = check.days.begin();
    auto week = check.weeks.begin();
    const auto closeWeeks = [&](const DateTime* next) {
        for (; week != check.weeks.end() && (next == nullptr || WeekLast(week->from, firstWeekday) < *next); ++week) {
            columns.push_back(WeekColumn(*week));
        }
    };
    for (const DateTime& day : DaysToShow(check, period)) {
        closeWeeks(&day);
        const bool has = worked != check.days.end() && worked->day == day;
        columns.push_back(DayColumn(day, has ? &*worked : nullptr));
        worked += has ? 1 : 0;
    }
    closeWeeks(nullptr);
    return columns;
}

} // namespace ptk
