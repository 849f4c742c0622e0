#include "model/PayPeriod.h"

#include "model/CDateRange.h"
#include "platform/Value.h"

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
