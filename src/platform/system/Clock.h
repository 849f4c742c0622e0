// Where "now" comes from. Handed in wherever it is needed, so that nothing below the start-up asks the machine for the time.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>

namespace ptk {

class Clock
{
public:
    virtual ~Clock() = default;

    // The local wall clock.
    [[nodiscard]] virtual DateTime Now() const = 0;

    // This day at midnight.
    [[nodiscard]] DateTime Today() const { return DateTime(Now().Date()); }
};

// The moment that stands for now in documents which are to be the same byte for byte whenever they are made: the variable
// SOURCE_DATE_EPOCH, in seconds since 1970, in UTC. None where it is not set, no number, or beyond the year 9999.
[[nodiscard]] std::optional<DateTime> ReproducibleMoment();

class SystemClock final : public Clock
{
public:
    DateTime Now() const override;
};

} // namespace ptk
