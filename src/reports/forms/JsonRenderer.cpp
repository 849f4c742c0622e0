#include "reports/forms/JsonRenderer.h"

#include "platform/text/Characters.h"
#include "platform/text/DataText.h"
#include "platform/text/JsonWriter.h"
#include "reports/forms/CellText.h"

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
    const auto row = [&](const ReportRow& cells) { return JsonRowOf(cells, document.table); };
    return JsonObject()
        .Text("title", document.title)
        .Truth("complete", document.Code() == 0)
        .TextOrNull("missing", document.Missing())
        .Json("rows", '[' + JsonLines(document.table.rows, row) + ']')
        .Done();
}

} // namespace

std::string JsonRowOf(const ReportRow& row, const ReportTable& table)
{
    JsonObject members;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const ReportColumn& column = table.columns[i];
        const std::string name = MemberName(column.name);
        members.Json(name, JsonCell(column.type, row[i]));
        if (column.type == CellType::Hours) {
            members.Json(name + kTimeSuffix, row[i].IsNull() ? "null" : JsonText(ClockText(row[i])));
        }
    }
    return members.Done();
}

std::string JsonOf(std::span<const ReportDocument> documents, DateTime made)
{
    return JsonObject().Moment("made", made).Json("reports", '[' + JsonLines(documents, ObjectOf) + "\r\n]").Done() + "\r\n";
}

} // namespace ptk
