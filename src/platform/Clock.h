// Where "now" comes from. Handed in wherever it is needed, so that nothing below the start-up asks the machine for the time.
#pragma once

#include "platform/DateTime.h"

namespace ptk {

class Clock
{
public:
    virtual ~Clock() = default;
    virtual DateTime Now() const = 0; // the local wall clock

    DateTime Today() const { return DateTime(Now().Date()); } // this day at midnight
};

class SystemClock final : public Clock
{
public:
    DateTime Now() const override;
};

} // namespace ptk
