// The check of a card finds what should be looked at in one employee's pay period before paying. It never changes what is paid.
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

// Whose card is checked, and for which days.
struct CheckedCard
{
    const CEmployee& employee;
    DateTime from; // midnights; both days belong to the period
    DateTime to;
};

// How the card's hours of one day are paid, in minutes. Automatic deduction can bring the regular minutes below 0.
struct DayMinutes
{
    DateTime day; // midnight
    std::int64_t regular = 0;
    std::int64_t overtime = 0;
};

// What the check needs besides the records. Each fact is looked at only where it matters.
struct CardFacts
{
    const ClosingsOfEmployee* closings = nullptr; // as seen from the period; nullptr: nothing is closed
    ClockChanges* clock = nullptr;                // nullptr: the clock was never changed

    // Whether the card of equally many days before this period has a readable record; where the function is empty, it has none.
    std::function<bool()> workedBefore{};
};

struct CardCheck
{
    std::vector<Finding> findings; // ordered by operator<
    std::vector<WorkWeek> weeks;   // the weeks that the period touches and in which a shift starts, be it outside the period
    std::vector<DayMinutes> days;  // the days on which a shift of the card starts
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    bool clockedIn = false;                // whether the employee is at work now
    std::optional<CardFigures> figures;    // none where the card's fetch takes a row that cannot be read, or more than 32,767
    std::optional<PaidDifference> changed; // none where the period is not closed, or the card is still as it was paid

    // The minutes of the longest week; 0 without weeks.
    [[nodiscard]] std::int64_t LongestWeek() const;
};

// Checks a card. `punches` are the rows that the card's fetch takes, and those that start in or reach into a work week of the period, cross
// one of its ends, start between the last closing before it and the period, or cannot be read; other rows do no harm. Linear after sorting.
// Where every row can be read and no shift is on the card or crosses its ends, only closings and the period before can lead to findings:
// such a check has no weeks and figures of 0.
[[nodiscard]] CardCheck CheckCard(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits,
                                  const CardFacts& facts = {});

} // namespace ptk
