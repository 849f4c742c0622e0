// What a generation of reports came to, in one sentence for the Reports page and the viewers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

// INVARIANT: failed <= done <= wanted.
struct ReportRun
{
    std::int32_t wanted = 0;
    std::int32_t done = 0;              // tried, whole or not; fewer than wanted when the user stopped it
    std::int32_t failed = 0;            // of those done
    std::vector<std::string> reasons{}; // of those failures that have one in words, each once

    // Sentences without a full stop, one for each report whose file took the place of another one of this run.
    std::vector<std::string> replaced{};
};

// Empty where there is none in words.
void NoteFailure(ReportRun& run, const std::string& reason);

// Two employees with one number have one file between them: "the report of Bob Lee took the place of that of Ann Lee, who has the same
// number".
[[nodiscard]] std::string DescribeReplacement(const std::string& name, const std::string& replaced);

// Of reports that are made one for each employee.
[[nodiscard]] std::string DescribeRun(const ReportRun& run);

// Of one report for all: errorNumber and `missing` are the report's, 0 when it is whole; `people` is what was done of all who were wanted
// in it.
[[nodiscard]] std::string DescribeReport(std::int32_t errorNumber, const std::string& missing, const ReportRun& people);

// For a report's viewer, empty when the report is whole.
[[nodiscard]] std::string DescribeGaps(std::int32_t errorNumber, const std::string& missing);

// "3 of 11 selected".
[[nodiscard]] std::string DescribeSelection(std::int32_t selected, std::int32_t all);

// What printing the open reports one by one came to; it stops at the first one that no printer takes.
[[nodiscard]] std::string DescribePrinting(std::int32_t printed, std::int32_t open);

} // namespace ptk
