// Where "now" comes from. Handed in wherever it is needed, so that nothing below the start-up asks the machine for the time.
#pragma once

#include "platform/text/DateTime.h"

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

class SystemClock final : public Clock
{
public:
    DateTime Now() const override;
};

} // namespace ptk
