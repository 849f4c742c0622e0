#include "office/Overview.h"
#include "office/OverviewTexts.h"
#include "platform/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace ptk {

namespace {

// What the table says, once.
constexpr auto kTitle = "Payday overview";
constexpr auto kNobody = "There are no employees to show.";
constexpr auto kNotReadable = "not readable";
constexpr auto kClockedIn = "yes";
constexpr auto kTotal = "Total";

constexpr std::size_t kColumns = 8;
using Cells = std::array<std::string, kColumns>;
const Cells kHeading{"Name", "Regular", "Overtime", "Gross", "Longest week", "Problems", "Notices", "Clocked in"};

std::string Day(DateTime day)
{
    return FormatDateTime(day, "mm/dd/yyyy");
}

// A name is one line here, whatever stands in the database.
std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return text;
}

Cells CellsOf(const OverviewRow& row)
{
    const CardFigures figures = row.figures.value_or(CardFigures{"", "", kNotReadable});
    return {OneLine(row.employee->DisplayName()),
            figures.regular,
            figures.overtime,
            figures.gross,
            row.LongestWeek(),
            std::to_string(row.check.problems),
            std::to_string(row.check.notices),
            row.check.clockedIn ? kClockedIn : ""};
}

Cells CellsOf(const OverviewTotals& totals)
{
    return {kTotal, totals.figures.regular,          totals.figures.overtime,        totals.figures.gross,
            "",     std::to_string(totals.problems), std::to_string(totals.notices), std::to_string(totals.clockedIn)};
}

// As wide as their widest cell; names to the left, figures to the right.
class Table
{
public:
    void Fit(const Cells& cells)
    {
        for (std::size_t i = 0; i < kColumns; ++i) {
            m_widths[i] = std::max(m_widths[i], CharacterCount(cells[i]));
        }
    }

    std::string Line(const Cells& cells) const
    {
        std::string line = cells[0] + Blanks(cells, 0);
        for (std::size_t i = 1; i < kColumns; ++i) {
            line += "  " + Blanks(cells, i) + cells[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line + "\r\n";
    }

private:
    std::string Blanks(const Cells& cells, std::size_t column) const
    {
        return std::string(m_widths[column] - CharacterCount(cells[column]), ' ');
    }

    std::array<std::size_t, kColumns> m_widths{};
};

} // namespace

std::string FindingLines(const CardCheck& check, bool showNotices)
{
    std::string lines;
    for (const Finding& finding : check.findings) {
        const Severity severity = SeverityOf(finding.kind);
        if (severity == Severity::Problem || showNotices) {
            lines += fmt::format("    {}: {}\r\n", NameOf(severity), finding.text);
        }
    }
    return lines;
}

std::string OverviewText(const Overview& overview)
{
    const Cells totals = CellsOf(TotalsOf(overview.rows));
    Table table;
    table.Fit(kHeading);
    table.Fit(totals);
    for (const OverviewRow& row : overview.rows) {
        table.Fit(CellsOf(row));
    }
    std::string text = fmt::format("{} {} - {}, made {}\r\n\r\n", kTitle, Day(overview.period.from), Day(overview.period.to),
                                   FormatDateTime(overview.made, "mm/dd/yyyy hh:mm AM/PM"));
    if (overview.rows.empty()) {
        return text + kNobody + "\r\n";
    }
    text += table.Line(kHeading);
    for (const OverviewRow& row : overview.rows) {
        text += table.Line(CellsOf(row)) + FindingLines(row.check, overview.limits.showNotices);
    }
    return text + "\r\n" + table.Line(totals);
}

} // namespace ptk
