#include "office/history/HistoryPages.h"

#include "office/card/CardTexts.h"
#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace ptk {

namespace {

constexpr auto kTitle = "History of changes";
constexpr auto kTooMany = "a PDF document holds {} changes at most. Choose fewer of them, or save a table or text";

constexpr std::size_t kMoment = 22;    // characters: 03/05/2003 08:00:00 PM
constexpr std::size_t kWidest = 120;   // characters of a line: "Christopher Hernandez: start MOMENT became MOMENT" with whoever did it
constexpr std::size_t kWidestWho = 32; // so that what was changed begins in the left half and goes on below itself

// Fills the text up with blanks to the width of its column, and adds two blanks.
std::string Column(const std::string& text, std::size_t width)
{
    return text + std::string(width - std::min(width, CharacterCount(text)) + 2, ' ');
}

std::string LineOf(const HistoryCells& cells, std::size_t whoWidth)
{
    const auto& [when, who, employee, what] = cells;
    return Column(when, kMoment) + Column(who, whoWidth) + (employee.empty() ? "" : employee + ": ") + what;
}

} // namespace

void HistoryPages::Add(HistoryCells cells)
{
    if (m_rows.size() == kMost) {
        throw Failure(failure::Overflow, "PTK", fmt::format(kTooMany, kMost));
    }
    m_rows.push_back(std::move(cells));
}

ReportDocument HistoryPages::Document() const
{
    std::size_t whoWidth = 0;
    for (const HistoryCells& row : m_rows) {
        whoWidth = std::max(whoWidth, CharacterCount(row.at(static_cast<std::size_t>(HistoryColumn::Who))));
    }
    whoWidth = std::min(whoWidth, kWidestWho);
    ReportDocument document{.title = kTitle, .heading = LineOf({"When", "Who", "", "What"}, whoWidth)};
    const auto begin = [&](std::string line) {
        document.columns = std::clamp(CharacterCount(line), document.columns, kWidest);
        document.BeginGroup();
        document.groups.back().underHeading = !document.lines.empty();
        document.Add(std::move(line));
    };
    begin(document.heading);
    document.Add("");
    for (const HistoryCells& row : m_rows) {
        begin(LineOf(row, whoWidth));
    }
    begin("");
    document.Add(CountText(std::ssize(m_rows), "change"));
    return document;
}

} // namespace ptk
