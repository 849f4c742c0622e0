// Groups of shifts that contradict each other: they overlap, or start at the same moment.
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

// Both functions take readable punches ordered by start, end and number, and answer the groups in that order.

// In a group, each shift shares at least one whole minute with another; a chain of such shifts is one group. Its minutes are those of the
// clock that two or more shifts cover, each counted once.
[[nodiscard]] std::vector<PunchGroup> OverlappingPunches(std::span<const Punch* const> punches);

// Groups of punches that start in the same second and of which at least one has no length: it is open, backward or empty. A group's minutes
// are those of all its punches together.
[[nodiscard]] std::vector<PunchGroup> SameStartPunches(std::span<const Punch* const> punches);

} // namespace ptk
