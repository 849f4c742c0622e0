#include "reports/forms/CsvRenderer.h"

#include "platform/text/DataText.h"
#include "reports/forms/CellText.h"

namespace ptk {

namespace {

constexpr auto kTimeHeading = " (h:mm)";
constexpr auto kLineEnd = "\r\n";

// Numbers are nobody's formulas.
std::string Field(CellType type, const Value& cell)
{
    const std::string text = CellText(type, cell);
    return type == CellType::Text ? CsvText(text) : text;
}

std::string HeadingOf(const ReportTable& table)
{
    std::string line;
    for (const ReportColumn& column : table.columns) {
        line += (line.empty() ? "" : ",") + CsvText(column.name);
        line += column.type == CellType::Hours ? ',' + CsvText(column.name + std::string(kTimeHeading)) : "";
    }
    return line + kLineEnd;
}

std::string LineOf(const ReportRow& row, const ReportTable& table)
{
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        line += (i == 0 ? "" : ",") + Field(table.columns[i].type, row[i]);
        line += table.columns[i].type == CellType::Hours ? ',' + ClockText(row[i]) : "";
    }
    return line + kLineEnd;
}

} // namespace

std::string CsvOf(std::span<const ReportDocument> documents)
{
    std::string text = documents.empty() ? "" : HeadingOf(documents.front().table);
    for (const ReportDocument& document : documents) {
        for (const ReportRow& row : document.table.rows) {
            text += LineOf(row, document.table);
        }
    }
    return text;
}

} // namespace ptk
