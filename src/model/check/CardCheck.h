// The check of a card: beside the pay, never part of it. It says what of one employee's pay period should be looked at before paying.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"
#include "model/check/WorkWeeks.h"
#include "store/CheckLimits.h"

#include <cstdint>
#include <vector>

namespace ptk {

class CEmployee;

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

struct CardCheck
{
    std::vector<Finding> findings; // in their order
    std::vector<WorkWeek> weeks;   // that the period touches and in which a shift starts, on whichever of their days
    std::vector<DayMinutes> days;  // on which a shift of the card starts
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    bool clockedIn = false;      // somebody is at work
    bool figuresReadable = true; // false: the card's fetch takes a row that cannot be read, so that the card has no figures

    // Minutes, 0 without weeks.
    [[nodiscard]] std::int64_t LongestWeek() const;
};

// `punches`: the rows that the card's fetch takes, those that start in or reach into a work week of the period, those that cross either end
// of it, and those that cannot be read; further ones do no harm. Linear after sorting. Nothing to tell of somebody without a shift on the
// card or across its ends and without a row that cannot be read: such a check is empty, its weeks included.
[[nodiscard]] CardCheck CheckCard(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits);

} // namespace ptk
