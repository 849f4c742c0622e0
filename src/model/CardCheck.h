// The check of a card: beside the pay, never part of it. It says what of one employee's pay period should be looked at before paying.
#pragma once

#include "model/Finding.h"
#include "model/Punch.h"
#include "model/WorkWeeks.h"

#include <cstdint>
#include <vector>

namespace ptk {

class CEmployee;

// What the office has chosen to be told.
struct CheckLimits
{
    std::int32_t longShiftHours = 16;
    std::int32_t firstWeekday = 0; // 0 Sunday to 6 Saturday
    bool showNotices = true;       // in windows and printed text; figures and data files hold them all the same
};

// Whose card, and for which days.
struct CheckedCard
{
    const CEmployee& employee;
    DateTime from; // midnights; both days belong to the period
    DateTime to;
};

struct CardCheck
{
    std::vector<Finding> findings; // in their order
    std::vector<WorkWeek> weeks;   // that the period touches and in which a shift starts
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    bool clockedIn = false;      // somebody is at work
    bool figuresReadable = true; // false: the card's fetch takes a row that cannot be read, so that the card has no figures

    std::int64_t LongestWeek() const; // minutes, 0 without weeks
};

// `punches`: the rows that the card's fetch takes, those that start in or reach into a work week of the period, those that cross either end
// of it, and those that cannot be read; further ones do no harm. Linear after sorting.
CardCheck CheckCard(const CheckedCard& card, const Punches& punches, DateTime now, const CheckLimits& limits);

} // namespace ptk
