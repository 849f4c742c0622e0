// The sentences of the findings. Windows, the console and data files all use these.
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

// The sentence of a finding that is about one readable shift and needs nothing but it and the limit; empty for all other kinds.
[[nodiscard]] std::string ShiftText(FindingKind kind, const Punch& punch, std::int32_t longShiftHours);

// A hire or release date of zero is not set. REQUIRES: the shift starts before the one or after the other.
[[nodiscard]] std::string NotEmployedText(const Punch& punch, DateTime hired, DateTime released);

[[nodiscard]] std::string UnreadableText(const Punch& punch);

// How a text that was stored instead of a time is shown: in quotes, cut where it is long, control characters as question marks.
[[nodiscard]] std::string QuotedValue(std::string_view text);

// "2 problems, 1 notice"; "No problems or notices" where nothing was found.
[[nodiscard]] std::string FindingSummary(const CardCheck& check);

[[nodiscard]] std::string OverlapText(const Finding& group);
[[nodiscard]] std::string SameStartText(const Finding& group);
[[nodiscard]] std::string DeductionText(const WorkDay& day, std::int64_t deducted);
[[nodiscard]] std::string LongDayText(const WorkDay& day);

// Takes the regular minutes without a pay rate and the overtime minutes without an overtime rate; 0: that rate is not missing.
[[nodiscard]] std::string NoRateText(std::int64_t regularWithout, std::int64_t overtimeWithout);

[[nodiscard]] std::string WeekText(const WorkWeek& week);

// "Paid 88.00 hours, now 88.50: +9.25 owed."; `owed` is none where the figures that were paid cannot be read.
[[nodiscard]] std::string PaidChangedText(const Closing& paid, const std::optional<CardFigures>& now,
                                          const std::optional<std::string>& owed);

[[nodiscard]] std::string TwiceText(const WorkDay& day);
[[nodiscard]] std::string BetweenText(const Finding& shifts);

// `lasted`: the minutes that the shift really lasted, by a clock that nobody changed.
[[nodiscard]] std::string ClockChangeText(const Punch& punch, std::int64_t lasted);

[[nodiscard]] std::string NoShiftText();

} // namespace ptk
