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

    friend bool operator==(const PayPeriod&, const PayPeriod&) = default;
};

// A length of L days deliberately spans L + 1: the last day is the first plus L. Raises Failure 6 when it leaves the calendar.
[[nodiscard]] PayPeriod PayPeriodFrom(DateTime from, std::int16_t length);

// The pay period that reports are offered for: it begins on the 1st of today's month, after the 15th on the 15th.
[[nodiscard]] PayPeriod DefaultPayPeriod(DateTime today, std::int16_t length);

// From 1 January of this year to today.
[[nodiscard]] PayPeriod YearToDate(DateTime today);

// The period after (direction 1) or before (-1) the one that begins on `from`, without overlap or gap. Nothing for any other direction, and
// where the period would leave the years 1900 to 2100. Raises Failure 6 when the days to step do not fit 16 bits.
[[nodiscard]] std::optional<PayPeriod> StepPayPeriod(DateTime from, std::int16_t length, std::int16_t direction);

} // namespace ptk
