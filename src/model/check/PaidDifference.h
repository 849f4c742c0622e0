// The difference between a card's present figures and those that were paid for its period.
#pragma once

#include "model/check/CardFigures.h"
#include "model/payday/Closing.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

// The present figures less the paid ones, always with a sign: "+0.50", "-9.25", "+0.00". All three are none where the present figures are
// none or a paid one cannot be read.
struct PaidDifference
{
    std::optional<std::string> regular;
    std::optional<std::string> overtime;
    std::optional<std::string> gross;

    bool operator==(const PaidDifference&) const = default;

    // The difference of regular and overtime hours together, in minutes; 0 where it cannot be told.
    [[nodiscard]] std::int64_t Minutes() const;
};

// None where the card's figures are still those that were paid.
[[nodiscard]] std::optional<PaidDifference> DifferenceOf(const Closing& paid, const std::optional<CardFigures>& now);

} // namespace ptk
