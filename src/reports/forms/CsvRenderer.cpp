#include "reports/forms/CsvRenderer.h"

#include "platform/text/CsvLine.h"
#include "reports/forms/CellText.h"

namespace ptk {

namespace {

constexpr auto kTimeHeading = " (h:mm)";

std::string HeadingOf(const ReportTable& table)
{
    CsvLine line;
    for (const ReportColumn& column : table.columns) {
        line.Text(column.name);
        if (column.type == CellType::Hours) {
            line.Text(column.name + std::string(kTimeHeading));
        }
    }
    return line.Done();
}

// Only texts are guarded against being taken for formulas: a negative number is no formula.
std::string LineOf(const ReportRow& row, const ReportTable& table)
{
    CsvLine line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const CellType type = table.columns[i].type;
        const std::string text = CellText(type, row[i]);
        type == CellType::Text ? line.Text(text) : line.Plain(text);
        if (type == CellType::Hours) {
            line.Plain(ClockText(row[i]));
        }
    }
    return line.Done();
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
