// The check of a card: beside the pay, never part of it. It says what of one employee's pay period should be looked at before paying.
#pragma once

#include "model/check/CardFigures.h"
#include "model/check/Finding.h"
#include "model/check/PaidDifference.h"
#include "model/check/Punch.h"
#include "model/check/WorkWeeks.h"
#include "store/CheckLimits.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace ptk {

class CEmployee;
class ClockChanges;
struct ClosingsOfEmployee;

// Whose card, and for which days.
struct CheckedCard
{
    const CEmployee& employee;
    DateTime from; // midnights; both days belong to the period
    DateTime to;
};

// How the card's hours of one day are paid, in minutes. Automatic deduction can bring the regular ones below 0.
struct DayMinutes
{
    DateTime day; // midnight
    std::int64_t regular = 0;
    std::int64_t overtime = 0;
};

// What the check is told of beside the records. Each is asked only where it matters.
struct CardFacts
{
    const ClosingsOfEmployee* closings = nullptr; // as seen from the period; nullptr: nothing is closed
    ClockChanges* clock = nullptr;                // nullptr: the clock was never changed

    // Whether a readable record is on the card of as many days before the period; where this is not set, none.
    std::function<bool()> workedBefore{};
};

struct CardCheck
{
    std::vector<Finding> findings; // in their order
    std::vector<WorkWeek> weeks;   // that the period touches and in which a shift starts, on whichever of their days
    std::vector<DayMinutes> days;  // on which a shift of the card starts
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    bool clockedIn = false;                // somebody is at work
    std::optional<CardFigures> figures;    // none where the card's fetch takes a row that cannot be read, or more than 32,767
    std::optional<PaidDifference> changed; // none where the period is not closed, or the card is as it was paid

    // Minutes, 0 without weeks.
    [[nodiscard]] std::int64_t LongestWeek() const;
};

// `punches`: the rows that the card's fetch takes, those that start in or reach into a work week of the period, those that cross either end
// of it, those that start between the last closing before it and the period, and those that cannot be read; further ones do no harm. Linear
// after sorting. Of somebody without a shift on the card or across its ends and without a row that cannot be read there is nothing to tell
// but what the closings and the period before give rise to: such a check has no weeks and figures of 0.
[[nodiscard]] CardCheck CheckCard(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits,
                                  const CardFacts& facts = {});

} // namespace ptk
