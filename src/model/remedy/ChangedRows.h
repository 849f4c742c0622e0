// The rows of a card as they would be after some changes.
#pragma once

#include "model/remedy/Remedy.h"

#include <optional>
#include <vector>

namespace ptk {

// Those that can be read, by start, end and number.
[[nodiscard]] std::vector<const Punch*> ReadablePunches(const Punches& punches);

// A change of a record that is not among the rows does nothing.
[[nodiscard]] Punches WithChanges(const CheckedCard& card, Punches punches, const std::vector<RecordChange>& changes);

} // namespace ptk
