// Pay periods: how they are counted, stepped through and offered.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>

namespace ptk {

// Both days are inclusive.
struct PayPeriod
{
    DateTime from;
    DateTime to;
};

// A length of L days deliberately spans L + 1: the last day is the first plus L. Raises Failure 6 when it leaves the calendar.
[[nodiscard]] PayPeriod PayPeriodFrom(DateTime from, std::int16_t length);

// What reports are offered for: the running period from the 1st of the month, after its 15th from the 15th; the year until today.
[[nodiscard]] PayPeriod DefaultPayPeriod(DateTime today, std::int16_t length);
[[nodiscard]] PayPeriod YearToDate(DateTime today);

// The period after (direction 1) or before (-1) the one from `from`, without overlap or gap. Nothing for any other direction, and where the
// period would leave the years 1900 to 2100. Raises Failure 6 when the days to step do not fit 16 bits.
[[nodiscard]] std::optional<PayPeriod> StepPayPeriod(DateTime from, std::int16_t length, std::int16_t direction);

} // namespace ptk
