// A clock that a test sets.
#pragma once

#include "platform/system/Clock.h"

namespace ptk {

class FixedClock final : public Clock
{
public:
    FixedClock() = default;
    explicit FixedClock(DateTime moment) : now(moment) {}

    DateTime now{CalendarDate{2003, 3, 5}, TimeOfDay{8, 5, 9}};

    DateTime Now() const override { return now; }
};

} // namespace ptk
