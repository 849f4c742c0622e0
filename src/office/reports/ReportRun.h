// The result of making reports, in one sentence for the Reports page and the viewers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

// INVARIANT: failed <= done <= wanted.
struct ReportRun
{
    std::int32_t wanted = 0;
    std::int32_t done = 0;              // tried, complete or not; fewer than wanted if the user cancelled
    std::int32_t failed = 0;            // of those done
    std::vector<std::string> reasons{}; // the words of those failures that have any, each once

    // Sentences without a full stop, one for each report whose file took the place of another one of this run.
    std::vector<std::string> replaced{};
};

// Counts a failure. `reason` is empty if the failure has no words.
void NoteFailure(ReportRun& run, const std::string& reason);

// Two employees with the same number share one file: "the report of Bob Lee took the place of that of Ann Lee, who has the same number".
[[nodiscard]] std::string DescribeReplacement(const std::string& name, const std::string& replaced);

// The result of a run that makes one report for each employee.
[[nodiscard]] std::string DescribeRun(const ReportRun& run);

// The result of one report for all employees. errorNumber, 0 when it is complete, and `missing` are the report's; `people` tells how many
// of the wanted employees were done.
[[nodiscard]] std::string DescribeReport(std::int32_t errorNumber, const std::string& missing, const ReportRun& people);

// The sentence for a report's viewer; empty if the report is complete.
[[nodiscard]] std::string DescribeGaps(std::int32_t errorNumber, const std::string& missing);

// "3 of 11 selected".
[[nodiscard]] std::string DescribeSelection(std::int32_t selected, std::int32_t all);

// The result of printing the open reports one by one, which stops at the first one that is refused.
[[nodiscard]] std::string DescribePrinting(std::int32_t printed, std::int32_t open);

} // namespace ptk
