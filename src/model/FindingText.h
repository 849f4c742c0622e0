// The sentences of the findings: the program's only wording for these matters, in windows, on the console and in data files.
#pragma once

#include "model/Finding.h"
#include "model/Punch.h"
#include "model/WorkWeeks.h"

#include <cstdint>
#include <string>

namespace ptk {

std::string HoursAndMinutes(std::int64_t minutes); // "7:05", "-0:30"

// Of a single shift, readable; `longShiftHours` and `reference` (the hire or release date) where the kind speaks of them.
std::string ShiftText(FindingKind kind, const Punch& punch, std::int32_t longShiftHours);
std::string NotEmployedText(const Punch& punch, DateTime hired, DateTime released);
std::string UnreadableText(const Punch& punch);

std::string OverlapText(const Finding& group);
std::string SameStartText(const Finding& group);
std::string DeductionText(const WorkDay& day, std::int64_t deducted);
std::string LongDayText(const WorkDay& day);
std::string NoRateText(std::int64_t regularWithout, std::int64_t overtimeWithout); // minutes; 0: that rate is not missing
std::string WeekText(const WorkWeek& week);

} // namespace ptk
