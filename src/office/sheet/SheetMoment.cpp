#include "office/sheet/SheetMoment.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <charconv>

namespace ptk {

namespace {

constexpr int kPivot = 30; // two-digit years below it are 20.., others 19..

struct Digits
{
    int value = 0;
    std::size_t count = 0;
};

// Takes the digits at the beginning, one to `most`; the count is 0 if there are none or more.
Digits TakeDigits(std::string_view& text, std::size_t most)
{
    std::size_t count = 0;
    while (count < text.size() && text[count] >= '0' && text[count] <= '9') {
        ++count;
    }
    Digits digits;
    if (count > 0 && count <= most) {
        digits.count = count;
        std::from_chars(text.data(), text.data() + count, digits.value);
        text.remove_prefix(count);
    }
    return digits;
}

bool Take(std::string_view& text, char c)
{
    const bool there = text.starts_with(c);
    text.remove_prefix(there ? 1 : 0);
    return there;
}

std::optional<DateTime> Day(int year, int month, int day)
{
    try {
        return DateTime(CalendarDate{year, month, day});
    } catch (const Failure&) { // no such day
        return std::nullopt;
    }
}

std::optional<DateTime> ReadYearFirst(std::string_view text)
{
    const Digits year = TakeDigits(text, 4);
    if (year.count != 4 || !Take(text, '-')) {
        return std::nullopt;
    }
    const Digits month = TakeDigits(text, 2);
    if (month.count != 2 || !Take(text, '-')) {
        return std::nullopt;
    }
    const Digits day = TakeDigits(text, 2);
    return day.count == 2 && text.empty() ? Day(year.value, month.value, day.value) : std::nullopt;
}

std::optional<DateTime> ReadMonthFirst(std::string_view text)
{
    const Digits month = TakeDigits(text, 2);
    const char between = text.empty() ? '\0' : text.front();
    if (month.count == 0 || (between != '/' && between != '-') || !Take(text, between)) {
        return std::nullopt;
    }
    const Digits day = TakeDigits(text, 2);
    if (day.count == 0 || !Take(text, between)) {
        return std::nullopt;
    }
    const Digits year = TakeDigits(text, 4);
    if ((year.count != 2 && year.count != 4) || !text.empty()) {
        return std::nullopt;
    }
    const int century = year.count == 4 ? 0 : year.value < kPivot ? 2000 : 1900;
    return Day(century + year.value, month.value, day.value);
}

// The hour of the day. With am or pm in `text`, `hour` is 1 to 12; if `text` is empty, it is 0 to 23.
std::optional<int> HourOf(int hour, std::string_view text)
{
    if (text.empty()) {
        return hour < 24 ? std::optional(hour) : std::nullopt;
    }
    Take(text, ' ');
    const std::string half = LowerCase(text);
    if ((half != "am" && half != "pm") || hour < 1 || hour > 12) {
        return std::nullopt;
    }
    return hour % 12 + (half == "pm" ? 12 : 0);
}

} // namespace

std::optional<DateTime> ReadSheetDay(std::string_view text)
{
    const auto day = ReadYearFirst(text);
    return day ? day : ReadMonthFirst(text);
}

std::optional<DateTime> ReadSheetTime(std::string_view text)
{
    const Digits hour = TakeDigits(text, 2);
    if (hour.count == 0 || !Take(text, ':')) {
        return std::nullopt;
    }
    const Digits minute = TakeDigits(text, 2);
    Digits second{0, 2};
    if (Take(text, ':')) {
        second = TakeDigits(text, 2);
    }
    const auto hourOfDay = HourOf(hour.value, text);
    if (minute.count != 2 || second.count != 2 || minute.value > 59 || second.value > 59 || !hourOfDay) {
        return std::nullopt;
    }
    return DateTime(DateTime().Date(), TimeOfDay{*hourOfDay, minute.value, second.value});
}

std::optional<DateTime> ReadSheetMoment(std::string_view text)
{
    const std::size_t between = text.find_first_of(" T");
    if (between == std::string_view::npos) {
        return std::nullopt;
    }
    const auto day = ReadSheetDay(text.substr(0, between));
    const auto time = ReadSheetTime(text.substr(between + 1));
    return day && time ? std::optional(OnDay(*day, *time)) : std::nullopt;
}

DateTime OnDay(DateTime day, DateTime time)
{
    return DateTime(day.Date(), time.Time());
}

} // namespace ptk
