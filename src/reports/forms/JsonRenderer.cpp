#include "reports/forms/JsonRenderer.h"

#include "platform/text/Characters.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "reports/forms/CellText.h"

#include <fmt/format.h>
#include <string_view>

namespace ptk {

namespace {

constexpr auto kTimeSuffix = "AsTime";

// "Regular Pay Rate" as "regularPayRate", "ZIP Code" as "zipCode".
std::string MemberName(std::string_view column)
{
    std::string name;
    bool begins = false;
    for (const char c : column) {
        if (c == ' ') {
            begins = true;
            continue;
        }
        name += begins ? c : LowerCase(c);
        begins = false;
    }
    return name;
}

std::string JsonCell(CellType type, const Value& cell)
{
    if (cell.IsNull()) {
        return "null";
    }
    const std::string text = CellText(type, cell);
    return type == CellType::WholeNumber || type == CellType::Boolean ? text : JsonText(text);
}

std::string ObjectOf(const ReportDocument& document)
{
    const std::string missing = document.Missing();
    std::string text = fmt::format(R"({{"title":{},"complete":{},"missing":{},"rows":[)", JsonText(document.title), document.Code() == 0,
                                   missing.empty() ? "null" : JsonText(missing));
    for (const ReportRow& row : document.table.rows) {
        text += (&row == document.table.rows.data() ? "\r\n" : ",\r\n") + JsonRowOf(row, document.table);
    }
    return text + "]}";
}

} // namespace

std::string JsonRowOf(const ReportRow& row, const ReportTable& table)
{
    std::string members;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const ReportColumn& column = table.columns[i];
        const std::string name = MemberName(column.name);
        members += fmt::format("{}\"{}\":{}", i == 0 ? "" : ",", name, JsonCell(column.type, row[i]));
        if (column.type == CellType::Hours) {
            members += fmt::format(",\"{}{}\":{}", name, kTimeSuffix, row[i].IsNull() ? "null" : JsonText(ClockText(row[i])));
        }
    }
    return '{' + members + '}';
}

std::string JsonOf(std::span<const ReportDocument> documents, DateTime made)
{
    std::string text = fmt::format(R"({{"made":"{}","reports":[)", IsoMoment(made));
    for (const ReportDocument& document : documents) {
        text += (&document == documents.data() ? "\r\n" : ",\r\n") + ObjectOf(document);
    }
    return text + "\r\n]}\r\n";
}

} // namespace ptk
