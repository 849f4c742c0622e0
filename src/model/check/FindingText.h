// The sentences of the findings: the program's only wording for these matters, in windows, on the console and in data files.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"
#include "model/check/WorkWeeks.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

struct CardCheck;
struct CardFigures;
struct Closing;

// "7:05", "-0:30".
[[nodiscard]] std::string HoursAndMinutes(std::int64_t minutes);

// Of a single shift, readable, and of a kind that needs no more than the shift and the limit.
[[nodiscard]] std::string ShiftText(FindingKind kind, const Punch& punch, std::int32_t longShiftHours);

// zero: that date is not set.
[[nodiscard]] std::string NotEmployedText(const Punch& punch, DateTime hired, DateTime released);

[[nodiscard]] std::string UnreadableText(const Punch& punch);

// How a text that stands where a time belongs is shown: in quotes, cut where it is long, control characters as question marks.
[[nodiscard]] std::string QuotedValue(std::string_view text);

// "2 problems, 1 notice"; "No problems or notices" where nothing was found.
[[nodiscard]] std::string FindingSummary(const CardCheck& check);

[[nodiscard]] std::string OverlapText(const Finding& group);
[[nodiscard]] std::string SameStartText(const Finding& group);
[[nodiscard]] std::string DeductionText(const WorkDay& day, std::int64_t deducted);
[[nodiscard]] std::string LongDayText(const WorkDay& day);

// Minutes; 0: that rate is not missing.
[[nodiscard]] std::string NoRateText(std::int64_t regularWithout, std::int64_t overtimeWithout);

[[nodiscard]] std::string WeekText(const WorkWeek& week);

// "Paid 88.00 hours, now 88.50: +9.25 owed."; owed: none where it cannot be told.
[[nodiscard]] std::string PaidChangedText(const Closing& paid, const std::optional<CardFigures>& now,
                                          const std::optional<std::string>& owed);

[[nodiscard]] std::string TwiceText(const WorkDay& day);
[[nodiscard]] std::string BetweenText(const Finding& shifts);

// lasted: minutes, by a clock that nobody changed.
[[nodiscard]] std::string ClockChangeText(const Punch& punch, std::int64_t lasted);

[[nodiscard]] std::string NoShiftText();

} // namespace ptk
