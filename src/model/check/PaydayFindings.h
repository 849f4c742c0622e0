// What closings, and clocks that were changed, give rise to on a card.
#pragma once

#include "model/check/ClockChanges.h"
#include "model/check/Finding.h"
#include "model/check/PaidDifference.h"
#include "model/check/Punch.h"
#include "model/payday/Closing.h"
#include "model/PayPeriod.h"

#include <optional>
#include <span>
#include <vector>

namespace ptk {

// Punches are readable and stand by start, end and number everywhere here.

// One where there is a difference. Its records are left to whoever reads the edit trail.
[[nodiscard]] std::vector<Finding> PaidChangedFindings(const Closing& paid, const std::optional<CardFigures>& now,
                                                       const std::optional<PaidDifference>& difference);

// A day of the period that was paid as part of another one.
[[nodiscard]] std::vector<Finding> TwiceFindings(const PayPeriod& period, const ClosingsOfEmployee& closings,
                                                 std::span<const Punch* const> onCard);

// What lies in no period, between the last closed one and this.
[[nodiscard]] std::vector<Finding> BetweenFindings(const PayPeriod& period, const ClosingsOfEmployee& closings,
                                                   std::span<const Punch* const> all);

// A shift that did not last what it counts.
[[nodiscard]] std::vector<Finding> ClockChangeFindings(std::span<const Punch* const> onCard, ClockChanges& clock);

} // namespace ptk
