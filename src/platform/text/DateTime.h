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

// A date-time, counted in seconds from 30 December 1899 00:00:00, the zero date-time, which means "not set" wherever a date may be missing.
// Its range is 1 January 100 00:00:00 to 31 December 9999 23:59:59; a result outside it raises Failure 6 (overflow).
class DateTime
{
public:
    static constexpr std::int64_t kSecondsPerMinute = 60;
    static constexpr std::int64_t kSecondsPerDay = 86400;
    static constexpr std::int64_t kFirstDay = -657434; // the day number of 1 January 100
    static constexpr std::int64_t kLastDay = 2958465;  // the day number of 31 December 9999

    constexpr DateTime() = default;

    // Raises Failure 5 when there is no such day or time.
    DateTime(CalendarDate date, TimeOfDay time = {});
    [[nodiscard]] static DateTime FromSeconds(std::int64_t secondsSinceZero);

    // The midnight at which the day begins.
    [[nodiscard]] static DateTime FromDay(std::int64_t dayNumber);

    [[nodiscard]] constexpr std::int64_t Seconds() const { return m_seconds; }
    [[nodiscard]] constexpr bool IsZero() const { return m_seconds == 0; }

    [[nodiscard]] CalendarDate Date() const;
    [[nodiscard]] TimeOfDay Time() const;

    // Whole days since the zero date-time, negative before it.
    [[nodiscard]] constexpr std::int64_t DayNumber() const { return Whole(m_seconds, kSecondsPerDay); }

    // Seconds since midnight, 0 to 86399.
    [[nodiscard]] constexpr std::int64_t SecondOfDay() const { return m_seconds - DayNumber() * kSecondsPerDay; }

    // Whole minutes since the zero date-time, the seconds cut off.
    [[nodiscard]] constexpr std::int64_t MinuteNumber() const { return Whole(m_seconds, kSecondsPerMinute); }

    // The day of the week, 0 Sunday to 6 Saturday.
    [[nodiscard]] int Weekday() const;

    [[nodiscard]] DateTime AddDays(std::int64_t days) const;
    [[nodiscard]] DateTime AddMinutes(std::int64_t minutes) const;

    constexpr auto operator<=>(const DateTime&) const = default; // NOLINT(modernize-use-nullptr): not a pointer

private:
    [[nodiscard]] DateTime Later(std::int64_t count, std::int64_t unit) const; // `unit` in seconds

    // Seconds in whole units, rounded down.
    [[nodiscard]] static constexpr std::int64_t Whole(std::int64_t seconds, std::int64_t unit)
    {
        return seconds / unit - (seconds % unit < 0 ? 1 : 0);
    }

    std::int64_t m_seconds = 0;
};

// Calendar differences: the beginnings of days or minutes from `from` to `to`, negative when `to` is earlier. Smaller units are ignored.
[[nodiscard]] constexpr std::int64_t DaysBetween(DateTime from, DateTime to)
{
    return to.DayNumber() - from.DayNumber();
}
[[nodiscard]] constexpr std::int64_t MinutesBetween(DateTime from, DateTime to)
{
    return to.MinuteNumber() - from.MinuteNumber();
}

} // namespace ptk

template <>
struct std::hash<ptk::DateTime>
{
    std::size_t operator()(const ptk::DateTime& value) const noexcept { return std::hash<std::int64_t>{}(value.Seconds()); }
};
