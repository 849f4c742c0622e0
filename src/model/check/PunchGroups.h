// Shifts that get in each other's way.
#pragma once

#include "model/check/Punch.h"

#include <cstdint>
#include <span>
#include <vector>

namespace ptk {

struct PunchGroup
{
    std::vector<const Punch*> punches; // by start, end and number
    std::int64_t minutes = 0;
};

// Both take readable punches by start, end and number, and answer the groups in that order.

// Each shares at least one whole minute with another of its group: a chain is one group. Minutes of the clock that two or more cover, each
// counted once.
[[nodiscard]] std::vector<PunchGroup> OverlappingPunches(std::span<const Punch* const> punches);

// Punches with one start to the second, at least one of them without a length: open, backward or empty. Minutes of all together.
[[nodiscard]] std::vector<PunchGroup> SameStartPunches(std::span<const Punch* const> punches);

} // namespace ptk
