// How the Timecards page and the overview show the findings of a check.
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

// The findings in their order, without the notices if they are not to be shown.
[[nodiscard]] std::vector<Finding> ShownFindings(const CardCheck& check, bool showNotices);

// "Problem: The shift that began on ... has no end and counts nothing.".
[[nodiscard]] std::string SpokenText(const Finding& finding);

// The mark of a row of the card: the severity of its worst finding, and the sentences of all its findings, one per line.
struct RowMark
{
    Severity severity = Severity::Notice;
    std::string text;
};

using RowMarks = std::unordered_map<std::int64_t, RowMark>; // by TimeRecordID

[[nodiscard]] RowMarks MarksOf(const CardCheck& check, bool showNotices);

// The two texts of the line between grid and figures. The first counts: "2 problems, 1 notice". The second, behind it, names the record
// that keeps the card from being made, with its value, or says why nothing was checked. Either can be empty.
[[nodiscard]] std::string FindingLineText(const CheckedTimecard& checked);
[[nodiscard]] std::string FindingDetailText(const CheckedTimecard& checked);

// Where the records of a finding are: on the card or outside of it.
struct FindingPlace
{
    std::vector<std::int64_t> onCard;    // keys of rows of the card
    std::vector<const Punch*> elsewhere; // point into the punches of the CheckedTimecard
    std::string text;                    // says on which days the first of `elsewhere` lies; empty if there is none
};

[[nodiscard]] FindingPlace PlaceOf(const Finding& finding, const CheckedTimecard& checked);

} // namespace ptk
