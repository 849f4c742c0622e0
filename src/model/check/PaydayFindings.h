// The findings on a card that come from closings, and from clocks that were changed.
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

// Everything in this header takes readable punches, ordered by start, end and number.

// One finding where there is a difference. It names no records: these are found by reading the edit trail.
[[nodiscard]] std::vector<Finding> PaidChangedFindings(const Closing& paid, const std::optional<CardFigures>& now,
                                                       const std::optional<PaidDifference>& difference);

// One finding for each day of the period whose shifts were also paid as part of another period.
[[nodiscard]] std::vector<Finding> TwiceFindings(const PayPeriod& period, const ClosingsOfEmployee& closings,
                                                 std::span<const Punch* const> onCard);

// One finding for all shifts that lie between the last closed period and this one, and so on no card.
[[nodiscard]] std::vector<Finding> BetweenFindings(const PayPeriod& period, const ClosingsOfEmployee& closings,
                                                   std::span<const Punch* const> all);

// One finding for each shift during which the clock was changed, so that it did not last as long as it counts.
[[nodiscard]] std::vector<Finding> ClockChangeFindings(std::span<const Punch* const> onCard, ClockChanges& clock);

} // namespace ptk
