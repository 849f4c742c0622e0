#include "office/OverviewTable.h"
#include "office/OverviewTexts.h"
#include "platform/Text.h"

#include <fmt/format.h>

#include <algorithm>

namespace ptk {

namespace {

// What the table says, once.
constexpr auto kTitle = "Payday overview";
constexpr auto kNobody = "There are no employees to show.";
constexpr auto kTotal = "Total";

constexpr std::size_t kColumns = kOverviewColumns;
using Cells = OverviewCells;
const Cells kHeading{"Name", "Regular", "Overtime", "Gross", "Longest week", "Problems", "Notices", "Clocked in"};

std::string Day(DateTime day)
{
    return FormatDateTime(day, "mm/dd/yyyy");
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
    std::vector<Cells> lines;
    lines.reserve(overview.rows.size());
    Table table;
    table.Fit(kHeading);
    table.Fit(totals);
    for (const OverviewRow& row : overview.rows) {
        table.Fit(lines.emplace_back(CellsOf(row)));
    }
    std::string text = fmt::format("{} {} - {}, made {}\r\n\r\n", kTitle, Day(overview.period.from), Day(overview.period.to),
                                   FormatDateTime(overview.made, "mm/dd/yyyy hh:mm AM/PM"));
    if (overview.rows.empty()) {
        return text + kNobody + "\r\n";
    }
    text += table.Line(kHeading);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        text += table.Line(lines[i]) + FindingLines(overview.rows[i].check, overview.limits.showNotices);
    }
    return text + "\r\n" + table.Line(totals);
}

std::string OverviewFile(ReportForm form, const Overview& overview)
{
    return form == ReportForm::Csv ? std::string(kByteOrderMark) + OverviewCsv(overview) : OverviewText(overview);
}

std::string OverviewFileName(const PayPeriod& period)
{
    return "PTK overview " + FormatDateTime(period.from, "yyyy-mm-dd");
}

} // namespace ptk
