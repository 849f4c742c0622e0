// A wall-clock moment of whole seconds, without a time zone.
#pragma once

#include <compare>
#include <cstdint>
#include <functional>

namespace ptk {

struct CalendarDate
{
    int year = 1899;
    int month = 12; // 1 to 12
    int day = 30;   // 1 to 31
};

struct TimeOfDay
{
    int hour = 0; // 0 to 23
    int minute = 0;
    int second = 0;
};

// Counted in seconds from 30 December 1899 00:00:00, the zero date-time, which means "not set" wherever a date may be missing.
// Range: 1 January 100 00:00:00 to 31 December 9999 23:59:59; a result outside it raises Failure 6 (overflow).
class DateTime
{
public:
    constexpr DateTime() = default;

    // Raises Failure 5 when there is no such day or time.
    DateTime(CalendarDate date, TimeOfDay time = {});
    static DateTime FromSeconds(std::int64_t secondsSinceZero);

    constexpr std::int64_t Seconds() const { return m_seconds; }
    constexpr bool IsZero() const { return m_seconds == 0; }

    CalendarDate Date() const;
    TimeOfDay Time() const;
    std::int64_t DayNumber() const; // whole days since the zero date-time, rounded down, so negative before it
    int Weekday() const;            // 0 Sunday to 6 Saturday

    DateTime AddDays(std::int64_t days) const;

    constexpr auto operator<=>(const DateTime&) const = default; // NOLINT(modernize-use-nullptr): not a pointer

private:
    std::int64_t m_seconds = 0;
};

// Calendar differences: the day or minute boundaries crossed from `from` to `to`, negative when `to` is earlier. Smaller units are ignored.
std::int64_t DaysBetween(DateTime from, DateTime to);
std::int64_t MinutesBetween(DateTime from, DateTime to);

} // namespace ptk

template <>
struct std::hash<ptk::DateTime>
{
    std::size_t operator()(const ptk::DateTime& value) const noexcept { return std::hash<std::int64_t>{}(value.Seconds()); }
};
