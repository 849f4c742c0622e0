#include "office/ReportRun.h"

#include "reports/Report.h"

#include <fmt/format.h>

namespace ptk {

namespace {

std::string Reports(std::int32_t count)
{
    return fmt::format("{} report{}", count, count == 1 ? "" : "s");
}

std::string OutOf(std::int32_t done, std::int32_t wanted)
{
    return done == wanted ? Reports(done) : fmt::format("{} of {}", done, Reports(wanted));
}

} // namespace

std::string DescribeRun(const ReportRun& run)
{
    if (run.wanted == 0) {
        return "Nobody is selected";
    }
    const std::string cancelled = run.done < run.wanted ? "Cancelled: " : "";
    const std::string whole = OutOf(run.done - run.failed, run.wanted);
    return cancelled + (run.failed == 0 ? whole + " written" : fmt::format("{} complete, {} failed", whole, run.failed));
}

std::string DescribeReport(std::int32_t errorNumber, const ReportRun& people)
{
    switch (errorNumber) {
    case 0:
        return people.wanted == 0 ? "Nobody is selected: the report written is empty" : "1 report written";
    case report::Cancelled:
        return fmt::format("Cancelled after {} of {} employees", people.done, people.wanted);
    case report::FileNotClosed:
    case report::LineNotWritten:
    case report::LineNotShown:
    case report::NoTimeRecords:
    case report::NotGenerated:
        return fmt::format("The report is not complete: error {}", errorNumber);
    default:
        return fmt::format("The report was not written: error {}", errorNumber);
    }
}

std::string DescribeSelection(std::int32_t selected, std::int32_t all)
{
    return fmt::format("{} of {} selected", selected, all);
}

std::string DescribePrinting(std::int32_t printed, std::int32_t open)
{
    if (open == 0) {
        return "No report is open";
    }
    return OutOf(printed, open) + " printed" + (printed < open ? ", the next one was refused" : "");
}

} // namespace ptk
