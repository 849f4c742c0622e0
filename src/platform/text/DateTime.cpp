#include "platform/text/DateTime.h"

#include "platform/Failure.h"

#include <chrono>

namespace ptk {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kZeroDay = std::chrono::year{1899} / 12 / 30;
static_assert(sys_days{std::chrono::year{100} / 1 / 1} == kZeroDay + std::chrono::days{DateTime::kFirstDay});
static_assert(sys_days{std::chrono::year{9999} / 12 / 31} == kZeroDay + std::chrono::days{DateTime::kLastDay});

bool InRange(int value, int end)
{
    return value >= 0 && value < end;
}

} // namespace

DateTime::DateTime(CalendarDate date, TimeOfDay time)
{
    // The calendar's fields are narrower than ours and would wrap.
    if (date.year < -9999 || date.year > 9999) {
        throw Failure(failure::Overflow);
    }
    if (!InRange(date.month, 13) || !InRange(date.day, 32)) {
        throw Failure(failure::InvalidProcedureCall);
    }
    const year_month_day day{std::chrono::year{date.year}, std::chrono::month{static_cast<unsigned>(date.month)},
                             std::chrono::day{static_cast<unsigned>(date.day)}};
    if (!day.ok() || !InRange(time.hour, 24) || !InRange(time.minute, 60) || !InRange(time.second, 60)) {
        throw Failure(failure::InvalidProcedureCall);
    }
    const std::int64_t days = (sys_days{day} - kZeroDay).count();
    *this = FromSeconds(days * kSecondsPerDay + std::int64_t{time.hour} * 3600 + time.minute * kSecondsPerMinute + time.second);
}

DateTime DateTime::FromSeconds(std::int64_t secondsSinceZero)
{
    if (secondsSinceZero < kFirstDay * kSecondsPerDay || secondsSinceZero >= (kLastDay + 1) * kSecondsPerDay) {
        throw Failure(failure::Overflow);
    }
    DateTime result;
    result.m_seconds = secondsSinceZero;
    return result;
}

DateTime DateTime::FromDay(std::int64_t dayNumber)
{
    return DateTime().AddDays(dayNumber);
}

CalendarDate DateTime::Date() const
{
    const year_month_day day{kZeroDay + std::chrono::days{DayNumber()}};
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

TimeOfDay DateTime::Time() const
{
    const auto second = static_cast<int>(SecondOfDay());
    return {second / 3600, second / 60 % 60, second % 60};
}

int DateTime::Weekday() const
{
    return static_cast<int>(std::chrono::weekday{kZeroDay + std::chrono::days{DayNumber()}}.c_encoding());
}

DateTime DateTime::AddDays(std::int64_t days) const
{
    return Later(days, kSecondsPerDay);
}

DateTime DateTime::AddMinutes(std::int64_t minutes) const
{
    return Later(minutes, kSecondsPerMinute);
}

DateTime DateTime::Later(std::int64_t count, std::int64_t unit) const
{
    // This is far more than the range holds, and keeps the product below from overflowing.
    constexpr std::int64_t limit = 10'000'000'000;
    if (count > limit || count < -limit) {
        throw Failure(failure::Overflow);
    }
    return FromSeconds(m_seconds + count * unit);
}

} // namespace ptk
