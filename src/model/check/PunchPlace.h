// Where a punch lies, as seen from one pay period.
#pragma once

#include "model/check/Punch.h"
#include "model/PayPeriod.h"

#include <cstdint>

namespace ptk {

// Whether a shift goes on over the midnight with which the day of this number begins; the day after the calendar's last one is allowed.
// REQUIRES: readable.
[[nodiscard]] inline bool Crosses(const Punch& punch, std::int64_t dayNumber)
{
    const std::int64_t midnight = dayNumber * DateTime::kSecondsPerDay;
    return !punch.IsOpen() && punch.start->Seconds() < midnight && punch.end->Seconds() > midnight;
}

[[nodiscard]] inline bool StartsIn(const PayPeriod& period, DateTime moment)
{
    return period.from.DayNumber() <= moment.DayNumber() && moment.DayNumber() <= period.to.DayNumber();
}

// Whether a punch that cannot be read is told in this period: where its start lies in it; without a start, where its end does; without
// both, in every period. It is told, too, where it keeps the period's card from being made.
[[nodiscard]] inline bool IsToldIn(const PayPeriod& period, const Punch& punch)
{
    if (punch.fetched) {
        return true;
    }
    if (IsSet(punch.start)) {
        return StartsIn(period, *punch.start);
    }
    return !IsSet(punch.end) || StartsIn(period, *punch.end);
}

// Whether a punch has to do with the period at all: it is on its card, crosses one of its ends, or cannot be read and is told there.
[[nodiscard]] inline bool LiesIn(const PayPeriod& period, const Punch& punch)
{
    if (!punch.IsReadable()) {
        return IsToldIn(period, punch);
    }
    return punch.fetched || Crosses(punch, period.from.DayNumber()) || Crosses(punch, period.to.DayNumber() + 1);
}

} // namespace ptk
