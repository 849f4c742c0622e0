#include "office/card/NewRecord.h"

#include "model/check/Punch.h"
#include "platform/Succeeds.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr int kMinutesOfHour = 60;

bool IsMidnight(DateTime moment)
{
    return moment == DateTime(moment.Date());
}

// A card takes the records that start in its period and end by the midnight after the last day.
bool LiesIn(const PayPeriod& period, DateTime start, DateTime end)
{
    const DateTime after = period.to.AddDays(1);
    return start >= period.from && start < after && end <= after;
}

std::string TimesWarning(DateTime start, DateTime end)
{
    if (IsMidnight(start) && IsMidnight(end)) {
        return "This record runs from midnight to midnight. ";
    }
    return end < start ? "This record ends before it starts and counts 0 hours. " : "";
}

std::string PeriodWarning(const PayPeriod& period)
{
    return fmt::format("This record lies outside the period {} - {}.", DayText(period.from), DayText(period.to));
}

std::optional<DateTime> ReadMoment(const RecordTexts& texts, DateTime (RecordTexts::*moment)() const)
{
    std::optional<DateTime> read;
    Succeeds([&] { read = (texts.*moment)(); });
    return read;
}

std::string StoredText(DateTime moment, const char* none)
{
    return moment.IsZero() ? none : MomentText(moment);
}

// An end is stored only if the start was read, too.
const char* UnreadPart(bool startRead, const std::optional<DateTime>& end, DateTime storedEnd)
{
    if (startRead) {
        return "the end could not be read";
    }
    if (!end) {
        return "start and end could not be read";
    }
    return *end == storedEnd ? "the start could not be read" : "the start could not be read, and the end was not taken";
}

} // namespace

DateTime RecordTexts::Start() const
{
    return Together(startDate, startTime);
}

DateTime RecordTexts::End() const
{
    return Together(endDate, endTime);
}

std::string NewRecordWarning(const RecordTexts& texts, const std::optional<PayPeriod>& period)
{
    std::string warning; // stays empty for unreadable texts, which the editor reports itself
    Succeeds([&] {
        const DateTime start = texts.Start();
        const DateTime end = texts.End();
        const bool inside = !period || LiesIn(*period, start, end);
        warning = TimesWarning(start, end) + (inside ? std::string() : PeriodWarning(*period));
    });
    return warning;
}

std::string LongShiftWarning(const RecordTexts& texts, std::int32_t longShiftHours)
{
    Punch shift;
    shift.start = ReadMoment(texts, &RecordTexts::Start);
    shift.end = ReadMoment(texts, &RecordTexts::End);
    if (!shift.IsReadable() || shift.Minutes() <= std::int64_t{longShiftHours} * kMinutesOfHour) {
        return {};
    }
    return fmt::format("This shift has {} hours, more than the longest usual one of {}. ", HoursAndMinutes(shift.Minutes()),
                       longShiftHours);
}

std::string SavedRecordText(const std::string& owner, const RecordTexts& texts, DateTime storedStart, DateTime storedEnd)
{
    const auto start = ReadMoment(texts, &RecordTexts::Start);
    const auto end = ReadMoment(texts, &RecordTexts::End);
    if (start && end) {
        return "Record saved for " + owner;
    }
    return fmt::format("Record saved, but {}: {}, {} - {}", UnreadPart(start.has_value(), end, storedEnd), owner,
                       StoredText(storedStart, "no start"), StoredText(storedEnd, "no end"));
}

} // namespace ptk
