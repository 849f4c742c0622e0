// What the Timecards page and the overview make of the findings of a check.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace ptk {

struct CardCheck;
struct CheckedTimecard;

// In their order; without the notices where they are not to be shown.
[[nodiscard]] std::vector<Finding> ShownFindings(const CardCheck& check, bool showNotices);

// "Problem: The shift that began on ... has no end and counts nothing.".
[[nodiscard]] std::string SpokenText(const Finding& finding);

// What a row of the card is marked with: its worst finding, and the sentences of all, a line each.
struct RowMark
{
    Severity severity = Severity::Notice;
    std::string text;
};

using RowMarks = std::unordered_map<std::int64_t, RowMark>; // by TimeRecordID

[[nodiscard]] RowMarks MarksOf(const CardCheck& check, bool showNotices);

// The line between grid and figures: "2 problems, 1 notice". Behind it the record that keeps the card from being made, and its value, or
// why nothing was checked. Both can be empty.
[[nodiscard]] std::string FindingLineText(const CheckedTimecard& checked);
[[nodiscard]] std::string FindingDetailText(const CheckedTimecard& checked);

// Where the records of a finding are.
struct FindingPlace
{
    std::vector<std::int64_t> onCard;    // keys of rows of the card
    std::vector<const Punch*> elsewhere; // parts of the check's punches
    std::string text;                    // on which days the first of the latter lies; empty when there is none
};

[[nodiscard]] FindingPlace PlaceOf(const Finding& finding, const CheckedTimecard& checked);

} // namespace ptk
