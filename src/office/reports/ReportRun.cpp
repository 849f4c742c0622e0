#include "office/reports/ReportRun.h"

#include "platform/text/Joined.h"
#include "reports/Report.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::size_t kMostReplaced = 3; // in one line

std::string Reports(std::int32_t count)
{
    return fmt::format("{} report{}", count, count == 1 ? "" : "s");
}

char UpperCase(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string OutOf(std::int32_t done, std::int32_t wanted)
{
    return done == wanted ? Reports(done) : fmt::format("{} of {}", done, Reports(wanted));
}

// The replaced files, a few of them: a business without employee numbers has one file for everybody.
std::string ReplacedText(const std::vector<std::string>& replaced)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(replaced.size(), kMostReplaced); ++i) {
        text += "; " + replaced[i];
    }
    return replaced.size() > kMostReplaced ? text + fmt::format("; and {} more", replaced.size() - kMostReplaced) : text;
}

} // namespace

void NoteFailure(ReportRun& run, const std::string& reason)
{
    ++run.failed;
    if (!reason.empty() && std::find(run.reasons.begin(), run.reasons.end(), reason) == run.reasons.end()) {
        run.reasons.push_back(reason);
    }
}

std::string DescribeReplacement(const std::string& name, const std::string& replaced)
{
    return fmt::format("the report of {} took the place of that of {}, who has the same number", name, replaced);
}

std::string DescribeRun(const ReportRun& run)
{
    if (run.wanted == 0) {
        return "Nobody is selected";
    }
    const std::string cancelled = run.done < run.wanted ? "Cancelled: " : "";
    const std::string whole = OutOf(run.done - run.failed, run.wanted);
    const std::string replaced = ReplacedText(run.replaced);
    if (run.failed == 0) {
        return cancelled + whole + " written" + replaced;
    }
    const std::string reasons = (run.reasons.empty() ? "" : ": ") + Joined(run.reasons, "; ");
    return fmt::format("{}{} complete, {} failed{}{}", cancelled, whole, run.failed, reasons, replaced);
}

std::string DescribeReport(std::int32_t errorNumber, const std::string& missing, const ReportRun& people)
{
    const std::string gaps = (missing.empty() ? "" : ", ") + missing;
    switch (errorNumber) {
    case 0:
        return people.wanted == 0 ? "Nobody is selected: the report written is empty" : "1 report written";
    case report::Cancelled:
        return fmt::format("Cancelled after {} of {} employees{}", people.done, people.wanted, gaps);
    case report::NotClosed:
    case report::LineNotWritten:
    case report::LineNotShown:
    case report::NoRecords:
    case report::NotGenerated:
        return fmt::format("The report is not complete: error {}{}", errorNumber, gaps);
    default:
        return fmt::format("The report was not written: error {}", errorNumber);
    }
}

std::string DescribeGaps(std::int32_t errorNumber, const std::string& missing)
{
    if (errorNumber == 0) {
        return "";
    }
    std::string text = fmt::format("This report is not complete: error {}.", errorNumber);
    if (!missing.empty()) {
        text += " " + missing + ".";
        text.at(text.size() - missing.size() - 1) = UpperCase(missing.front());
    }
    return text;
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
