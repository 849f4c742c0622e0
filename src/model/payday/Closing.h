// A pay period that was closed for one employee: what was paid, when and by whom, as it stays known whatever happens to the records later.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

struct Closing
{
    std::int64_t id = 0; // never used twice; a later closing has a greater one
    std::int64_t employee = 0;
    PayPeriod period;               // midnights
    std::optional<DateTime> paidAt; // none where another tool left something else there
    std::string paidBy;             // the person's name; empty for nobody in particular
    std::string regular;            // the card's shown texts at that moment: hours, hours, money
    std::string overtime;
    std::string gross;
    std::int64_t entry = 0; // the newest number of the edit trail before the closing; 0 without one
};

// What was closed of one employee, as it is seen from one pay period.
struct ClosingsOfEmployee
{
    std::vector<Closing> ofPeriod;         // of exactly this period, oldest first; the last one counts
    std::vector<PayPeriod> touching;       // of other days, as far as they share a day with the period; one may stand here twice
    std::optional<DateTime> lastDayBefore; // the greatest last day before the period's first one

    // nullptr where the period was never closed.
    [[nodiscard]] const Closing* Newest() const { return ofPeriod.empty() ? nullptr : &ofPeriod.back(); }
};

using Closings = std::map<std::int64_t, ClosingsOfEmployee>; // by EmployeeID; who has nothing in it is missing

} // namespace ptk
