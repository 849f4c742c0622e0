#include "store/engine/StoredDate.h"

#include <chrono>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::string_view kPattern = "0000-00-00 00:00:00"; // 0 stands for any digit
constexpr int kFirstYear = 100;

bool FitsPattern(std::string_view text)
{
    if (text.size() != kPattern.size()) {
        return false;
    }
    for (std::size_t i = 0; i < kPattern.size(); ++i) {
        const bool fits = kPattern[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == kPattern[i];
        if (!fits) {
            return false;
        }
    }
    return true;
}

// REQUIRES: digits only.
int Number(std::string_view digits)
{
    int number = 0;
    for (const char digit : digits) {
        number = number * 10 + (digit - '0');
    }
    return number;
}

unsigned Part(std::string_view text, std::size_t position)
{
    return static_cast<unsigned>(Number(text.substr(position, 2)));
}

} // namespace

std::string StoredText(DateTime value)
{
    const CalendarDate date = value.Date();
    const TimeOfDay time = value.Time();
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", date.year, date.month, date.day, time.hour, time.minute, time.second);
}

std::optional<DateTime> FromStoredText(std::string_view text)
{
    using namespace std::chrono;
    if (!FitsPattern(text)) {
        return std::nullopt;
    }
    const year_month_day date(year(Number(text.substr(0, 4))), month(Part(text, 5)), day(Part(text, 8)));
    const unsigned hour = Part(text, 11);
    const unsigned minute = Part(text, 14);
    const unsigned second = Part(text, 17);
    if (!date.ok() || date.year() < year(kFirstYear) || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    constexpr sys_days kZero = year(1899) / December / 30;
    const std::chrono::seconds sinceZero = sys_days(date) - kZero + hours(hour) + minutes(minute) + std::chrono::seconds(second);
    return DateTime::FromSeconds(sinceZero.count());
}

} // namespace ptk
