#include "platform/text/TypedTime.h"

#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <string>

namespace ptk {

namespace {

enum class Half
{
    None,
    Am,
    Pm
};

// Takes "a", "am", "p" or "pm" off the end of text in small letters.
Half TakeHalf(std::string_view& text)
{
    std::string_view rest = text;
    if (rest.ends_with('m')) {
        rest.remove_suffix(1);
    }
    if (!rest.ends_with('a') && !rest.ends_with('p')) {
        return Half::None;
    }
    const Half half = rest.ends_with('a') ? Half::Am : Half::Pm;
    rest.remove_suffix(1);
    text = Trimmed(rest);
    return half;
}

bool IsMidnight(DateTime moment)
{
    return moment == DateTime(moment.Date());
}

std::optional<int> DigitsValue(std::string_view digits, std::size_t most)
{
    if (digits.empty() || digits.size() > most || !std::all_of(digits.begin(), digits.end(), IsDigit)) {
        return std::nullopt;
    }
    return ToInt32(digits);
}

// Reads "830" and "0830"; "17" is an hour.
std::optional<TimeOfDay> RunTogether(std::string_view digits)
{
    const auto number = DigitsValue(digits, 4);
    if (!number) {
        return std::nullopt;
    }
    return digits.size() <= 2 ? TimeOfDay{*number, 0, 0} : TimeOfDay{*number / 100, *number % 100, 0};
}

// Reads "8:30" and "8:30:15"; points may stand for the colons. "8.5" is refused: it may mean half past eight.
std::optional<TimeOfDay> Separated(std::string_view text, char separator)
{
    const std::size_t first = text.find(separator);
    const std::size_t second = std::min(text.find(separator, first + 1), text.size());
    const std::string_view minuteText = text.substr(first + 1, second - first - 1);
    const auto hour = DigitsValue(text.substr(0, first), 2);
    const auto minute = DigitsValue(minuteText, 2);
    const auto seconds = second == text.size() ? std::optional(0) : DigitsValue(text.substr(second + 1), 2);
    if (!hour || !minute || !seconds || (separator == '.' && minuteText.size() < 2)) {
        return std::nullopt;
    }
    return TimeOfDay{*hour, *minute, *seconds};
}

std::optional<TimeOfDay> Clocktime(std::string_view text)
{
    for (const char separator : {':', '.'}) {
        if (text.find(separator) != std::string_view::npos) {
            return Separated(text, separator);
        }
    }
    return RunTogether(text);
}

// Turns the hour of a 12-hour clock into that of a 24-hour clock; false when its clock has no such hour.
bool ApplyHalf(TimeOfDay& time, Half half)
{
    if (half == Half::None) {
        return time.hour <= 23;
    }
    if (time.hour < 1 || time.hour > 12) {
        return false;
    }
    time.hour = time.hour % 12 + (half == Half::Pm ? 12 : 0);
    return true;
}

} // namespace

std::optional<DateTime> ReadTypedTime(std::string_view text)
{
    const std::string lower = LowerCase(Trimmed(text));
    std::string_view rest = lower;
    const Half half = TakeHalf(rest);
    auto time = Clocktime(rest);
    if (!time || !ApplyHalf(*time, half) || time->minute > 59 || time->second > 59) {
        return std::nullopt;
    }
    return DateTime({}, *time);
}

std::optional<DateTime> ReadTypedDate(std::string_view text, DateTime today)
{
    const std::string_view typed = Trimmed(text);
    auto date = ParseDateTime(typed);
    const std::size_t separator = typed.find_first_of("/-");
    if (!date && separator != std::string_view::npos) {
        date = ParseDateTime(std::string(typed) + typed[separator] + std::to_string(today.Date().year));
    }
    if (!date || date->DayNumber() == 0 || !IsMidnight(*date)) {
        return std::nullopt;
    }
    return date;
}

TypedMoment TypedTime(std::string text)
{
    const auto moment = ReadTypedTime(text);
    return {std::move(text), moment};
}

TypedMoment TypedDate(std::string text, DateTime today)
{
    auto moment = ReadTypedDate(text, today);
    if (!moment) {
        moment = ParseDateTime(text);
    }
    return {std::move(text), moment};
}

DateTime Together(const TypedMoment& day, const TypedMoment& time)
{
    const TypedMoment& one = day.Empty() ? time : day;
    if (!one.moment || (!time.Empty() && !time.moment)) {
        throw Failure(failure::TypeMismatch);
    }
    if (day.Empty() || time.Empty()) {
        return *one.moment;
    }
    if (!IsMidnight(*day.moment)) {
        throw Failure(failure::TypeMismatch);
    }
    return DateTime(day.moment->Date(), time.moment->Time());
}

} // namespace ptk
