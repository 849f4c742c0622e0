// When the clocks of the business were put forward or back: a punch holds what a clock on the wall showed.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <functional>
#include <unordered_map>

namespace ptk {

// Remembers what it was asked. One that a card after the other is checked with asks the system once a day of theirs.
class ClockChanges
{
public:
    // Seconds by which a clock on the wall is ahead of the world's time. Not empty.
    using OffsetAt = std::function<std::int64_t(DateTime moment)>;

    explicit ClockChanges(OffsetAt offsetAt);

    // By how many seconds the clock was put forward between the two, negative where it was put back.
    [[nodiscard]] std::int64_t Between(DateTime earlier, DateTime later);

private:
    [[nodiscard]] std::int64_t AtMidnight(std::int64_t dayNumber);
    [[nodiscard]] std::int64_t At(DateTime moment);

    OffsetAt m_offsetAt;
    std::unordered_map<std::int64_t, std::int64_t> m_midnights; // by day number
};

} // namespace ptk
