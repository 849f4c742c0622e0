// Text to date-times: a small scanner over the words, numbers and separators of the text.
#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <array>
#include <chrono>

namespace ptk {

namespace {

struct Number
{
    int value = 0;
    std::size_t digits = 0; // 0 = there was none
};

class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    bool AtEnd() const { return m_at == m_text.size(); }
    std::size_t Mark() const { return m_at; }
    void Return(std::size_t mark) { m_at = mark; }

    bool Blanks()
    {
        const std::size_t start = m_at;
        while (!AtEnd() && IsBlank(m_text[m_at])) {
            ++m_at;
        }
        return m_at > start;
    }

    bool Take(char c)
    {
        if (AtEnd() || m_text[m_at] != c) {
            return false;
        }
        ++m_at;
        return true;
    }

    // Takes up to four digits; a longer run of digits is no number of a date.
    Number TakeNumber()
    {
        Number number;
        while (!AtEnd() && IsDigit(m_text[m_at]) && number.digits < 5) {
            number.value = number.value * 10 + (m_text[m_at++] - '0');
            ++number.digits;
        }
        return number.digits > 4 ? Number{} : number;
    }

    std::string_view TakeWord()
    {
        const std::size_t start = m_at;
        while (!AtEnd() && IsLetter(m_text[m_at])) {
            ++m_at;
        }
        return m_text.substr(start, m_at - start);
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

constexpr int kFirstYear = 100; // as DateTime has it

constexpr std::array<std::string_view, 12> kMonths{"january", "february", "march",     "april",   "may",      "june",
                                                   "july",    "august",   "september", "october", "november", "december"};

// 1 to 12 for a full or three-letter month name, 0 for anything else.
int MonthOfWord(std::string_view word)
{
    const std::string lower = LowerCase(word);
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        if (lower == kMonths[i] || lower == kMonths[i].substr(0, 3)) {
            return static_cast<int>(i) + 1;
        }
    }
    return 0;
}

int FullYear(Number year)
{
    if (year.digits > 2) {
        return year.value;
    }
    return year.value < 30 ? 2000 + year.value : 1900 + year.value;
}

std::optional<CalendarDate> MakeDate(int year, int month, int day)
{
    const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (year < kFirstYear || !date.ok()) {
        return std::nullopt;
    }
    return CalendarDate{year, month, day};
}

// The date of a month and a day, which change places where only that is a date (13/5/2003).
std::optional<CalendarDate> MakeDateEitherWay(int year, int first, int second)
{
    if (const auto date = MakeDate(year, first, second)) {
        return date;
    }
    return MakeDate(year, second, first);
}

// Takes 3/5/2003, 3-5-03, 2003-03-05 or 5-Mar-2003 from behind its first separator on.
std::optional<CalendarDate> TakeSeparatedDate(Scanner& scanner, Number first, char separator)
{
    const std::size_t mark = scanner.Mark();
    if (const int month = MonthOfWord(scanner.TakeWord()); month != 0) {
        if (!scanner.Take(separator)) {
            return std::nullopt;
        }
        const Number year = scanner.TakeNumber();
        return year.digits == 0 || first.digits > 2 ? std::nullopt : MakeDate(FullYear(year), month, first.value);
    }
    scanner.Return(mark);
    const Number second = scanner.TakeNumber();
    if (second.digits == 0 || second.digits > 2 || !scanner.Take(separator)) {
        return std::nullopt;
    }
    const Number third = scanner.TakeNumber();
    if (third.digits == 0) {
        return std::nullopt;
    }
    if (first.digits > 2) {
        return third.digits > 2 ? std::nullopt : MakeDateEitherWay(first.value, second.value, third.value);
    }
    return MakeDateEitherWay(FullYear(third), first.value, second.value);
}

// Takes what follows the day and the month of a spelled date: an optional comma, blanks, the year.
std::optional<int> TakeSpelledYear(Scanner& scanner)
{
    const bool comma = scanner.Take(',');
    if (!scanner.Blanks() && !comma) {
        return std::nullopt;
    }
    const Number year = scanner.TakeNumber();
    if (year.digits == 0) {
        return std::nullopt;
    }
    return FullYear(year);
}

// Takes March 5, 2003 or March 5 2003.
std::optional<CalendarDate> TakeMonthFirst(Scanner& scanner)
{
    const int month = MonthOfWord(scanner.TakeWord());
    scanner.Blanks();
    const Number day = scanner.TakeNumber();
    if (month == 0 || day.digits == 0 || day.digits > 2) {
        return std::nullopt;
    }
    const auto year = TakeSpelledYear(scanner);
    return year ? MakeDate(*year, month, day.value) : std::nullopt;
}

// Takes 5 March 2003 or 5 March, 2003 from behind its day on.
std::optional<CalendarDate> TakeDayFirst(Scanner& scanner, Number day)
{
    scanner.Blanks();
    const int month = MonthOfWord(scanner.TakeWord());
    if (month == 0 || day.digits > 2) {
        return std::nullopt;
    }
    const auto year = TakeSpelledYear(scanner);
    return year ? MakeDate(*year, month, day.value) : std::nullopt;
}

std::optional<CalendarDate> TakeDate(Scanner& scanner)
{
    const Number first = scanner.TakeNumber();
    if (first.digits == 0) {
        return TakeMonthFirst(scanner);
    }
    if (scanner.Take('/')) {
        return TakeSeparatedDate(scanner, first, '/');
    }
    if (scanner.Take('-')) {
        return TakeSeparatedDate(scanner, first, '-');
    }
    return TakeDayFirst(scanner, first);
}

enum class Meridiem
{
    None,
    Morning,
    Afternoon,
    Wrong
};

Meridiem TakeMeridiem(Scanner& scanner)
{
    const std::size_t mark = scanner.Mark();
    scanner.Blanks();
    const std::string word = LowerCase(scanner.TakeWord());
    if (word == "am" || word == "pm") {
        return word == "am" ? Meridiem::Morning : Meridiem::Afternoon;
    }
    scanner.Return(mark);
    return word.empty() ? Meridiem::None : Meridiem::Wrong;
}

std::optional<int> HourOfDay(int hour, Meridiem meridiem)
{
    if (meridiem == Meridiem::Wrong) {
        return std::nullopt;
    }
    if (meridiem == Meridiem::None) {
        return hour < 24 ? std::optional(hour) : std::nullopt;
    }
    if (hour < 1 || hour > 12) {
        return std::nullopt;
    }
    return hour % 12 + (meridiem == Meridiem::Afternoon ? 12 : 0);
}

std::optional<TimeOfDay> TakeTime(Scanner& scanner)
{
    const Number hour = scanner.TakeNumber();
    if (hour.digits == 0 || hour.digits > 2 || !scanner.Take(':')) {
        return std::nullopt;
    }
    const Number minute = scanner.TakeNumber();
    Number second{0, 1};
    if (scanner.Take(':')) {
        second = scanner.TakeNumber();
    }
    const auto fits = [](Number n) { return (n.digits == 1 || n.digits == 2) && n.value < 60; };
    if (!fits(minute) || !fits(second)) {
        return std::nullopt;
    }
    const auto hourOfDay = HourOfDay(hour.value, TakeMeridiem(scanner));
    if (!hourOfDay) {
        return std::nullopt;
    }
    return TimeOfDay{*hourOfDay, minute.value, second.value};
}

} // namespace

std::optional<DateTime> ParseDateTime(std::string_view text)
{
    Scanner scanner(Trimmed(text));
    if (const auto time = TakeTime(scanner); time && scanner.AtEnd()) {
        return DateTime(CalendarDate{}, *time);
    }
    scanner.Return(0);
    const auto date = TakeDate(scanner);
    if (!date) {
        return std::nullopt;
    }
    if (scanner.AtEnd()) {
        return DateTime(*date);
    }
    if (!scanner.Blanks()) {
        return std::nullopt;
    }
    const auto time = TakeTime(scanner);
    if (!time || !scanner.AtEnd()) {
        return std::nullopt;
    }
    return DateTime(*date, *time);
}

DateTime ToDateTime(std::string_view text)
{
    if (const auto value = ParseDateTime(text)) {
        return *value;
    }
    throw Failure(failure::TypeMismatch);
}

} // namespace ptk
