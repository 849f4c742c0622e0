// The sentences of the findings: the program's only wording for these matters, in windows, on the console and in data files.
#pragma once

#include "model/Finding.h"
#include "model/Punch.h"
#include "model/WorkWeeks.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ptk {

struct CardCheck;

std::string HoursAndMinutes(std::int64_t minutes); // "7:05", "-0:30"

// Of a single shift, readable, and of a kind that needs no more than the shift and the limit.
std::string ShiftText(FindingKind kind, const Punch& punch, std::int32_t longShiftHours);
std::string NotEmployedText(const Punch& punch, DateTime hired, DateTime released); // zero: that date is not set
std::string UnreadableText(const Punch& punch);

// How a text that stands where a time belongs is shown: in quotes, cut where it is long, control characters as question marks.
std::string QuotedValue(std::string_view text);

// "2 problems, 1 notice"; "No problems or notices" where nothing was found.
std::string FindingSummary(const CardCheck& check);

std::string OverlapText(const Finding& group);
std::string SameStartText(const Finding& group);
std::string DeductionText(const WorkDay& day, std::int64_t deducted);
std::string LongDayText(const WorkDay& day);
std::string NoRateText(std::int64_t regularWithout, std::int64_t overtimeWithout); // minutes; 0: that rate is not missing
std::string WeekText(const WorkWeek& week);

} // namespace ptk
