// The shifts that Auto Fill makes of its dates and times, and what it says about them beforehand.
#pragma once

#include "platform/text/DateTime.h"
#include "platform/text/TypedTime.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

// The contents of Auto Fill's boxes.
struct FillTexts
{
    std::string from;
    std::string to;
    TypedMoment startTime; // empty: midnight
    TypedMoment endTime;
};

enum class FillRefusal
{
    None,
    NoRange,  // a text that is no date, or one outside the years 1900 to 2100
    TooShort, // the range has fewer than two days, which is deliberately refused
    NoTime    // a text that is no time
};

struct Shift
{
    DateTime start;
    DateTime end; // for Auto Fill on the same day, even if it lies before the start
};

struct FillPlan
{
    FillRefusal refusal = FillRefusal::None;
    std::vector<Shift> shifts; // one for every day of the range, in order; empty when refused
};

[[nodiscard]] FillPlan PlanFill(const FillTexts& texts);

using DayNumbers = std::set<std::int64_t>; // DateTime::DayNumber

// The days on which shifts of the employee start, over the whole range that can be chosen. Nothing when they could not be read.
[[nodiscard]] std::optional<DayNumbers> DaysWithRecords(CJetDB& database, std::int32_t employeeID);

// What OK will do, in sentences. `taken`: the days that already have records.
[[nodiscard]] std::string FillForecast(const FillPlan& plan, const FillTexts& texts, const std::optional<DayNumbers>& taken);

} // namespace ptk
