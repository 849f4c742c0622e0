#include "reports/forms/ReportDocument.h"

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

const std::string kRule(72, '-');

} // namespace

std::size_t CountLines(const std::string& text)
{
    return 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::int32_t ReportDocument::Code() const
{
    const auto last = std::find_if(lines.rbegin(), lines.rend(), [](const ReportLine& line) { return line.code != 0; });
    return last == lines.rend() ? 0 : last->code;
}

std::string ReportDocument::Missing() const
{
    std::string text;
    for (const ReportGap& gap : gaps) {
        text += text.empty() ? "" : "; ";
        text += gap.names.empty() ? gap.reason : "without " + gap.names + ": " + gap.reason;
    }
    return text;
}

void ReportDocument::Add(std::string text)
{
    groups.back().lines += CountLines(text);
    lines.push_back({std::move(text)});
}

void ReportDocument::AddRule()
{
    Add(kRule);
}

void ReportDocument::SplitBefore(std::size_t count, std::size_t below)
{
    if (count == 0) {
        return;
    }
    groups.back().lines -= count + below;
    groups.insert(groups.end(), count, LineGroup{1, false, true});
    groups.back().lines += below;
}

void ReportDocument::CutShort(std::int32_t code)
{
    Fail(code);
    whole = false;
}

void ReportDocument::AddGap(const std::string& reason, const std::string& whose)
{
    const auto known = std::find_if(gaps.begin(), gaps.end(), [&](const ReportGap& gap) { return gap.reason == reason; });
    if (known == gaps.end()) {
        gaps.push_back({reason, whose});
    } else {
        known->names += ", " + whose;
    }
}

} // namespace ptk
