// The figures of a time card, computed from its punches alone.
#pragma once

#include "model/check/Punch.h"

#include <optional>
#include <span>
#include <string>

namespace ptk {

class CEmployee;

// The exact texts that the employee's time card shows.
struct CardFigures
{
    std::string regular;  // hours
    std::string overtime; // hours
    std::string gross;    // money

    bool operator==(const CardFigures&) const = default;

    // Regular and overtime hours together, added as they are shown.
    [[nodiscard]] std::string Hours() const;
};

// Nothing for more than 32,767 punches, or where the hours overflow. REQUIRES: all punches are on the card and readable, ordered by start.
[[nodiscard]] std::optional<CardFigures> FiguresOf(const CEmployee& employee, std::span<const Punch* const> punches);

} // namespace ptk
