// When the clocks of the business were put forward or back. This matters since a punch holds what a clock on the wall showed.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <functional>
#include <unordered_map>

namespace ptk {

// Remembers the answers for midnights: used for many cards, it asks the system about each day once, save on days of a change.
class ClockChanges
{
public:
    // Answers by how many seconds a clock on the wall is ahead of UTC at that moment. Must not be empty.
    using OffsetAt = std::function<std::int64_t(DateTime moment)>;

    explicit ClockChanges(OffsetAt offsetAt);

    // By how many seconds the clock was put forward between two moments; negative where it was put back.
    [[nodiscard]] std::int64_t Between(DateTime earlier, DateTime later);

private:
    [[nodiscard]] std::int64_t AtMidnight(std::int64_t dayNumber);
    [[nodiscard]] std::int64_t At(DateTime moment);

    OffsetAt m_offsetAt;
    std::unordered_map<std::int64_t, std::int64_t> m_midnights; // by day number
};

} // namespace ptk
