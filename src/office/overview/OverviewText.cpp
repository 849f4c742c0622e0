#include "office/card/CardTexts.h"
#include "office/overview/OverviewTable.h"
#include "office/overview/OverviewTexts.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "reports/forms/ReportDocument.h"

#include <fmt/format.h>

#include <algorithm>

namespace ptk {

namespace {

// The texts of the table.
constexpr auto kTitle = "Payday overview";
constexpr auto kNobody = "There are no employees to show.";
constexpr auto kTotal = "Total";
constexpr auto kLeftOut = "Not in the list, with records in this period:";
constexpr auto kLineEnd = "\r\n";

using Cells = OverviewCells;

// The heading is shorter than the window's one, for the lines of a terminal and of a page.
const Cells kHeading{"Name", "Regular", "Overtime", "Gross", "Longest week", "Problems", "Notices", "Clocked in", "Paid", "Changed"};

Cells TotalCells(const OverviewTotals& totals)
{
    return {kTotal,
            totals.figures.regular,
            totals.figures.overtime,
            totals.figures.gross,
            "",
            std::to_string(totals.problems),
            std::to_string(totals.notices),
            std::to_string(totals.clockedIn),
            std::to_string(totals.paid),
            std::to_string(totals.changed)};
}

// Makes lines of cells. Columns are as wide as their widest cell; names stand to the left, figures to the right.
class Table
{
public:
    void Fit(const Cells& cells)
    {
        for (std::size_t i = 0; i < kOverviewColumns; ++i) {
            m_widths[i] = std::max(m_widths[i], CharacterCount(cells[i]));
        }
    }

    std::string Line(const Cells& cells) const
    {
        std::string line = cells[0] + Blanks(cells, 0);
        for (std::size_t i = 1; i < kOverviewColumns; ++i) {
            line += "  " + Blanks(cells, i) + cells[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    }

private:
    std::string Blanks(const Cells& cells, std::size_t column) const
    {
        return std::string(m_widths[column] - CharacterCount(cells[column]), ' ');
    }

    std::array<std::size_t, kOverviewColumns> m_widths{};
};

// The lines of the table.
struct Lines
{
    std::string heading;
    std::vector<std::string> rows; // one for each employee
    std::string totals;
};

Lines LinesOf(const Overview& overview)
{
    const Cells totals = TotalCells(TotalsOf(overview.rows));
    std::vector<Cells> cells;
    cells.reserve(overview.rows.size());
    Table table;
    table.Fit(kHeading);
    table.Fit(totals);
    for (const OverviewRow& row : overview.rows) {
        table.Fit(cells.emplace_back(OverviewCellsOf(row)));
    }
    Lines lines{table.Line(kHeading), {}, table.Line(totals)};
    for (const Cells& row : cells) {
        lines.rows.push_back(table.Line(row));
    }
    return lines;
}

using Remedies = std::vector<std::vector<Remedy>>; // of each finding; empty if nobody asked for them

std::vector<std::string> Sentences(const CardCheck& check, bool showNotices, const Remedies& remedies = {})
{
    std::vector<std::string> sentences;
    for (std::size_t i = 0; i < check.findings.size(); ++i) {
        const Severity severity = SeverityOf(check.findings[i].kind);
        if (severity != Severity::Problem && !showNotices) {
            continue;
        }
        sentences.push_back(fmt::format("    {}: {}", SeverityName(severity), check.findings[i].text));
        for (std::size_t j = 0; i < remedies.size() && j < remedies[i].size(); ++j) {
            sentences.push_back("        " + remedies[i][j].text);
        }
    }
    return sentences;
}

// "    Peter Lindqvist (inactive): 3 records, 24.00 regular and 0.00 overtime hours, 480.00; not paid"
std::string LineOf(const LeftOut& out)
{
    std::string line = fmt::format("    {}: {}", LeftOutName(out), CountText(out.row.records, "record"));
    if (out.row.figures) {
        const CardFigures& figures = *out.row.figures;
        line += fmt::format(", {} regular and {} overtime hours, {}", figures.regular, figures.overtime, figures.gross);
    }
    if (!out.row.paid) {
        return line + "; not paid";
    }
    return line + (out.row.check.changed ? "; changed since it was paid" : "; paid");
}

std::vector<std::string> LeftOutLines(const Overview& overview)
{
    std::vector<std::string> lines;
    if (!overview.leftOut.empty()) {
        lines = {"", kLeftOut};
    }
    for (const LeftOut& out : overview.leftOut) {
        lines.push_back(LineOf(out));
    }
    return lines;
}

std::string LeftOutText(const Overview& overview)
{
    std::string text;
    for (const std::string& line : LeftOutLines(overview)) {
        text += line + kLineEnd;
    }
    return text;
}

std::string PeriodText(const Overview& overview)
{
    return fmt::format("{} {} - {}", kTitle, DayText(overview.period.from), DayText(overview.period.to));
}

} // namespace

std::string FindingLines(const CardCheck& check, bool showNotices)
{
    std::string lines;
    for (const std::string& sentence : Sentences(check, showNotices)) {
        lines += sentence + kLineEnd;
    }
    return lines;
}

std::string OverviewText(const Overview& overview)
{
    std::string text = fmt::format("{}, made {}\r\n\r\n", PeriodText(overview), MomentText(overview.made));
    if (overview.rows.empty()) {
        return text + kNobody + kLineEnd + LeftOutText(overview);
    }
    const Lines lines = LinesOf(overview);
    text += lines.heading + kLineEnd;
    for (std::size_t i = 0; i < lines.rows.size(); ++i) {
        text += lines.rows[i] + kLineEnd;
        for (const std::string& sentence : Sentences(overview.rows[i].check, overview.limits.showNotices, overview.rows[i].remedies)) {
            text += sentence + kLineEnd;
        }
    }
    text += kLineEnd + lines.totals + kLineEnd;
    return text + LeftOutText(overview);
}

ReportDocument OverviewDocument(const Overview& overview)
{
    const Lines lines = LinesOf(overview);
    ReportDocument document{.title = PeriodText(overview), .heading = lines.heading, .columns = CharacterCount(lines.heading)};
    const auto begin = [&](const std::string& line) {
        document.BeginGroup();
        document.groups.back().underHeading = !document.lines.empty();
        document.Add(line);
    };
    begin(lines.heading);
    for (std::size_t i = 0; i < lines.rows.size(); ++i) {
        begin(lines.rows[i]);
        for (const std::string& sentence : Sentences(overview.rows[i].check, overview.limits.showNotices)) {
            document.Add(sentence);
        }
    }
    begin("");
    document.Add(lines.totals);
    for (const std::string& line : LeftOutLines(overview)) {
        document.Add(line);
    }
    return document;
}

std::string OverviewFile(ReportForm form, const Overview& overview)
{
    switch (form) {
    case ReportForm::Text:
        return OverviewText(overview);
    case ReportForm::Csv:
        return std::string(kByteOrderMark) + OverviewCsv(overview);
    case ReportForm::Json:
        return OverviewJson(overview);
    case ReportForm::Pdf:
        break;
    }
    const ReportDocument document = OverviewDocument(overview);
    return FileOf(form, {&document, 1}, overview.made);
}

std::string OverviewFileName(const PayPeriod& period)
{
    return "PTK overview " + IsoDay(period.from);
}

} // namespace ptk
