#include "model/remedy/RemedyText.h"

#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

std::string ClockTime(DateTime moment)
{
    return FormatDateTime(moment, moment.Time().second == 0 ? "hh:mm AM/PM" : "hh:mm:ss AM/PM");
}

// A time after `start`; the day is told only where it is another than that of `start`.
std::string TimeAfter(DateTime start, DateTime moment)
{
    const bool sameDay = start.DayNumber() == moment.DayNumber();
    return ClockTime(moment) + (sameDay ? std::string() : " on " + DayText(moment));
}

} // namespace

std::string EndAtText(const Punch& shift, DateTime end)
{
    return "End at " + TimeAfter(*shift.start, end);
}

std::string EndFirstText(const Punch& first, DateTime end)
{
    return "End the first shift at " + TimeAfter(*first.start, end);
}

std::string SplitText(const std::vector<DateTime>& midnights)
{
    std::string days;
    for (const DateTime midnight : midnights) {
        days += (days.empty() ? "" : " and ") + DayText(midnight);
    }
    return fmt::format("Split at midnight, where {} begin{}", days, midnights.size() == 1 ? "s" : "");
}

std::string DeleteText()
{
    return "Delete the record";
}

std::string DeleteShiftText(const Punch& shift)
{
    return fmt::format("Delete the shift from {} to {}", ClockTime(*shift.start), TimeAfter(*shift.start, *shift.end));
}

std::string DeleteEndingText(const Punch& record)
{
    return record.IsOpen() ? "Delete the record without an end" : "Delete the record that ends at " + TimeAfter(*record.start, *record.end);
}

std::string WithHours(const std::string& what, const std::optional<std::string>& hours)
{
    return hours ? fmt::format("{}: the card has {} hours", what, *hours) : what + ": the card still has a record that cannot be read";
}

} // namespace ptk
