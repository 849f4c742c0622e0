// The rows of a card as they would be after some changes.
#pragma once

#include "model/remedy/Remedy.h"

#include <vector>

namespace ptk {

// The punches that can be read, ordered by start, end and number. REQUIRES: `punches` outlives the answer.
[[nodiscard]] std::vector<const Punch*> ReadablePunches(const Punches& punches);

// The punches after these changes. A change of a record that is not among them does nothing.
[[nodiscard]] Punches WithChanges(const CheckedCard& card, Punches punches, const std::vector<RecordChange>& changes);

} // namespace ptk
