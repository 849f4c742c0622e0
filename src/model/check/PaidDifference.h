// What a card is now, against what was paid for its period.
#pragma once

#include "model/check/CardFigures.h"
#include "model/payday/Closing.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

// Now less paid, always with a sign: "+0.50", "-9.25", "+0.00". Nothing in all three where the figures of now, or those that were paid,
// cannot be read.
struct PaidDifference
{
    std::optional<std::string> regular;
    std::optional<std::string> overtime;
    std::optional<std::string> gross;

    bool operator==(const PaidDifference&) const = default;

    // Of regular and overtime hours together, in minutes; 0 where it cannot be told.
    [[nodiscard]] std::int64_t Minutes() const;
};

// Nothing where the card is as it was paid.
[[nodiscard]] std::optional<PaidDifference> DifferenceOf(const Closing& paid, const std::optional<CardFigures>& now);

} // namespace ptk
