// Tells what time it is. A clock is handed in wherever it is needed, so that nothing below the start-up asks the machine for the time.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>

namespace ptk {

class Clock
{
public:
    virtual ~Clock() = default;

    // The moment that the local wall clock shows, in whole seconds.
    [[nodiscard]] virtual DateTime Now() const = 0;

    // The midnight with which today begins.
    [[nodiscard]] DateTime Today() const { return DateTime(Now().Date()); }
};

// The moment that documents show instead of the present one, so that they are the same byte for byte whenever they are made: the variable
// SOURCE_DATE_EPOCH, in seconds since 1970, in UTC. None where it is not set, no number, negative, or 31 December 9999 or later.
[[nodiscard]] std::optional<DateTime> ReproducibleMoment();

class SystemClock final : public Clock
{
public:
    DateTime Now() const override;
};

} // namespace ptk
