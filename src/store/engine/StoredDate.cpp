#include "store/engine/StoredDate.h"

#include "platform/text/Characters.h"

#include <array>
#include <chrono>
#include <tuple>

namespace ptk {

namespace {

constexpr std::string_view kPattern = "0000-00-00 00:00:00";
constexpr int kFirstYear = 100;

// The numbers in the form's places of two digits each: century, year, month, day, hour, minute, second. Every date-time that is read passes
// here.
using Parts = std::array<unsigned, 7>;
constexpr std::array<std::size_t, 7> kPlaces{0, 2, 5, 8, 11, 14, 17};

constexpr bool TakeApart(std::string_view text, Parts& parts)
{
    if (text.size() != kPattern.size() || text[4] != '-' || text[7] != '-' || text[10] != ' ' || text[13] != ':' || text[16] != ':') {
        return false;
    }
    bool digits = true;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const char tens = text[kPlaces[i]];
        const char ones = text[kPlaces[i] + 1];
        digits = digits && IsDigit(tens) && IsDigit(ones);
        parts[i] = static_cast<unsigned>((tens - '0') * 10 + ones - '0');
    }
    return digits;
}

} // namespace

std::string StoredText(DateTime value)
{
    const CalendarDate date = value.Date();
    const TimeOfDay time = value.Time();
    const std::array parts{date.year / 100, date.year % 100, date.month, date.day, time.hour, time.minute, time.second};
    std::string text(kPattern);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text[kPlaces[i]] = static_cast<char>('0' + parts[i] / 10);
        text[kPlaces[i] + 1] = static_cast<char>('0' + parts[i] % 10);
    }
    return text;
}

std::optional<DateTime> FromStoredText(std::string_view text)
{
    using namespace std::chrono;
    Parts parts{};
    if (!TakeApart(text, parts)) {
        return std::nullopt;
    }
    const year_month_day date(year(static_cast<int>(parts[0] * 100 + parts[1])), month(parts[2]), day(parts[3]));
    const auto [hour, minute, second] = std::tuple(parts[4], parts[5], parts[6]);
    if (!date.ok() || date.year() < year(kFirstYear) || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    constexpr sys_days kZero = year(1899) / December / 30;
    const std::chrono::seconds sinceZero = sys_days(date) - kZero + hours(hour) + minutes(minute) + std::chrono::seconds(second);
    return DateTime::FromSeconds(sinceZero.count());
}

} // namespace ptk
