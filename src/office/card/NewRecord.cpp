#include "office/card/NewRecord.h"

#include "platform/Succeeds.h"
#include "platform/text/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kShortDate = "mm/dd/yyyy";

bool IsMidnight(DateTime moment)
{
    return moment == DateTime(moment.Date());
}

// A card takes what starts in its period and ends by the midnight after the last day.
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
    return fmt::format("This record lies outside the period {} - {}.", FormatDateTime(period.from, kShortDate),
                       FormatDateTime(period.to, kShortDate));
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
    std::string warning; // empty for unreadable texts, of which the editor tells itself
    Succeeds([&] {
        const DateTime start = texts.Start();
        const DateTime end = texts.End();
        const bool inside = !period || LiesIn(*period, start, end);
        warning = TimesWarning(start, end) + (inside ? std::string() : PeriodWarning(*period));
    });
    return warning;
}

} // namespace ptk
