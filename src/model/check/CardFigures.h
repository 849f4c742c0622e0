// The figures of a time card, computed from its punches alone.
#pragma once

#include "model/check/Punch.h"

#include <optional>
#include <span>
#include <string>

namespace ptk {

class CEmployee;

// To the letter as the employee's time card shows them.
struct CardFigures
{
    std::string regular;  // hours
    std::string overtime; // hours
    std::string gross;    // money

    bool operator==(const CardFigures&) const = default;

    // The shown hours of both kinds together.
    [[nodiscard]] std::string Hours() const;
};

// Nothing for more than 32,767. REQUIRES: all are on the card and readable, and stand by start.
[[nodiscard]] std::optional<CardFigures> FiguresOf(const CEmployee& employee, std::span<const Punch* const> punches);

} // namespace ptk
