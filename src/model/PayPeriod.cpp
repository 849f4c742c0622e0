#include "model/PayPeriod.h"

#include "model/CDateRange.h"
#include "platform/text/Value.h"

namespace ptk {

namespace {

bool CanBeChosen(DateTime day)
{
    const CDateRange limits;
    return day >= limits.MinDate() && day <= limits.MaxDate();
}

} // namespace

PayPeriod PayPeriodFrom(DateTime from, std::int16_t length)
{
    return {from, from.AddDays(length)};
}

PayPeriod DefaultPayPeriod(DateTime today, std::int16_t length)
{
    const CalendarDate date = today.Date();
    // The second half starts on the 15th, which belongs to both, deliberately.
    return PayPeriodFrom(DateTime(CalendarDate{date.year, date.month, date.day <= 15 ? 1 : 15}), length);
}

PayPeriod YearToDate(DateTime today)
{
    return {DateTime(CalendarDate{today.Date().year, 1, 1}), DateTime(today.Date())};
}

std::optional<PayPeriod> StepPayPeriod(DateTime from, std::int16_t length, std::int16_t direction)
{
    if (direction != 1 && direction != -1) {
        return std::nullopt;
    }
    const std::int16_t lengths = NarrowToInt16(std::int64_t{length} * direction);
    const std::int16_t days = NarrowToInt16(lengths + direction);
    const PayPeriod next = PayPeriodFrom(from.AddDays(days), length);
    if (!CanBeChosen(next.from) || !CanBeChosen(next.to)) {
        return std::nullopt;
    }
    return next;
}

} // namespace ptk
