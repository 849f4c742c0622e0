// Date-times to text.
#include "platform/text/Characters.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

struct Moment
{
    CalendarDate date;
    TimeOfDay time;
    bool twelveHours = false;
};

int TwelveHour(int hour)
{
    return hour % 12 == 0 ? 12 : hour % 12;
}
const char* MeridiemName(int hour)
{
    return hour < 12 ? "AM" : "PM";
}

constexpr std::string_view kMeridiemToken = "am/pm";

bool StartsWithMeridiem(std::string_view text)
{
    if (text.size() < kMeridiemToken.size() || LowerCase(text.front()) != kMeridiemToken.front()) {
        return false;
    }
    for (std::size_t i = 0; i < kMeridiemToken.size(); ++i) {
        if (LowerCase(text[i]) != kMeridiemToken[i]) {
            return false;
        }
    }
    return true;
}

void AppendPadded(std::string& out, int value, std::size_t width)
{
    if (width == 2 && value < 100) { // a short way for nearly every field
        out += static_cast<char>('0' + value / 10);
        out += static_cast<char>('0' + value % 10);
        return;
    }
    const fmt::format_int digits(value);
    if (digits.size() < width) {
        out.append(width - digits.size(), '0');
    }
    out.append(digits.data(), digits.size());
}

// Appends the value of one run of equal pattern letters; `afterHours` makes m mean minutes.
void AppendToken(std::string& out, char letter, std::size_t length, const Moment& moment, bool afterHours)
{
    switch (letter) {
    case 'd':
        return AppendPadded(out, moment.date.day, length);
    case 'm':
        return AppendPadded(out, afterHours ? moment.time.minute : moment.date.month, length);
    case 'y':
        return length > 2 ? AppendPadded(out, moment.date.year, 4) : AppendPadded(out, moment.date.year % 100, 2);
    case 'h':
        return AppendPadded(out, moment.twelveHours ? TwelveHour(moment.time.hour) : moment.time.hour, length);
    case 'n':
        return AppendPadded(out, moment.time.minute, length);
    default:
        return AppendPadded(out, moment.time.second, length);
    }
}

std::size_t RunLength(std::string_view pattern, std::size_t start, std::size_t most)
{
    std::size_t end = start + 1;
    while (end < pattern.size() && end - start < most && LowerCase(pattern[end]) == LowerCase(pattern[start])) {
        ++end;
    }
    return end - start;
}

bool HasMeridiem(std::string_view pattern)
{
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (StartsWithMeridiem(pattern.substr(i))) {
            return true;
        }
    }
    return false;
}

} // namespace

void AppendDateTime(std::string& out, DateTime value, std::string_view pattern)
{
    const Moment moment{value.Date(), value.Time(), HasMeridiem(pattern)};
    char lastToken = '\0';
    for (std::size_t i = 0; i < pattern.size();) {
        const char letter = LowerCase(pattern[i]);
        switch (letter) {
        case 'd':
        case 'm':
        case 'y':
        case 'h':
        case 'n':
        case 's': {
            const std::size_t length = RunLength(pattern, i, letter == 'y' ? 4 : 2);
            AppendToken(out, letter, length, moment, lastToken == 'h');
            lastToken = letter;
            i += length;
            continue;
        }
        case 'a':
            if (StartsWithMeridiem(pattern.substr(i))) {
                out += MeridiemName(moment.time.hour);
                i += kMeridiemToken.size();
                continue;
            }
            break;
        default:
            break;
        }
        out += pattern[i++];
    }
}

std::string FormatDateTime(DateTime value, std::string_view pattern)
{
    std::string out;
    out.reserve(pattern.size() + 8);
    AppendDateTime(out, value, pattern);
    return out;
}

std::string DayText(DateTime day)
{
    return FormatDateTime(day, "mm/dd/yyyy");
}

std::string MomentText(DateTime moment)
{
    return FormatDateTime(moment, "mm/dd/yyyy hh:mm AM/PM");
}

std::string IsoDay(DateTime day)
{
    return FormatDateTime(day, "yyyy-mm-dd");
}

std::string IsoMoment(DateTime moment)
{
    return IsoDay(moment) + 'T' + FormatDateTime(moment, "hh:nn:ss");
}

std::string ShortDateText(DateTime value)
{
    const CalendarDate date = value.Date();
    return fmt::format("{}/{}/{}", date.month, date.day, date.year);
}

std::string GeneralText(DateTime value)
{
    const TimeOfDay time = value.Time();
    const bool midnight = time.hour == 0 && time.minute == 0 && time.second == 0;
    const bool dated = value.DayNumber() != 0;
    if (dated && midnight) {
        return ShortDateText(value);
    }
    const std::string clock = fmt::format("{}:{:02}:{:02} {}", TwelveHour(time.hour), time.minute, time.second, MeridiemName(time.hour));
    return dated ? ShortDateText(value) + ' ' + clock : clock;
}

} // namespace ptk
