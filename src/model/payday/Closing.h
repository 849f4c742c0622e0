// A pay period that was closed for one employee: what was paid, when and by whom. It stays the same whatever happens to the records later.
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
    std::optional<DateTime> paidAt; // none where another tool stored something that is no date-time
    std::string paidBy;             // the person's name; empty where nobody was named
    std::string regular;            // the texts that the card showed at that moment: hours here and in overtime, money in gross
    std::string overtime;
    std::string gross;
    std::int64_t entry = 0; // the number of the newest entry of the edit trail before the closing; 0 without one
};

// The closings of one employee, as seen from one pay period.
struct ClosingsOfEmployee
{
    std::vector<Closing> ofPeriod;         // closings of exactly this period, oldest first; the last one counts
    std::vector<PayPeriod> touching;       // other closed periods that share a day with this one; the same days may be here twice
    std::optional<DateTime> lastDayBefore; // the latest last day of all closed periods that end before this one begins

    // The closing that counts; nullptr where the period is not closed.
    [[nodiscard]] const Closing* Newest() const { return ofPeriod.empty() ? nullptr : &ofPeriod.back(); }
};

using Closings = std::map<std::int64_t, ClosingsOfEmployee>; // by EmployeeID; only employees with something to tell

} // namespace ptk
