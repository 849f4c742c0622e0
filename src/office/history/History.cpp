#include "office/history/History.h"

#include "platform/text/DataText.h"
#include "store/CJetDB.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Change,When,Who,Program,Step,Table,Row,Action,Before,After,Text,Reason\r\n";

// "2003-03-05 17:00:00" as "2003-03-05T17:00:00".
std::string Moment(std::string at)
{
    if (at.size() > 10 && at[10] == ' ') {
        at[10] = 'T';
    }
    return at;
}

bool IsJsonNumber(const std::string& text)
{
    return text.find_first_not_of("0123456789+-.eE") == std::string::npos && !text.empty();
}

std::string Json(const TrailValue& value)
{
    switch (value.kind) {
    case TrailValue::Kind::Null:
        return "null";
    case TrailValue::Kind::Number:
        return IsJsonNumber(value.text) ? value.text : JsonText(value.text);
    case TrailValue::Kind::Text:
        return JsonText(value.text);
    default:
        return "{\"blob\":" + JsonText(value.text) + "}";
    }
}

std::string Json(const std::optional<TrailRow>& row)
{
    if (!row) {
        return "null";
    }
    std::string text;
    for (const TrailValue& value : *row) {
        text += (text.empty() ? "" : ",") + JsonText(value.column) + ":" + Json(value);
    }
    return "{" + text + "}";
}

std::string JsonOrNull(const std::string& text)
{
    return text.empty() ? "null" : JsonText(text);
}

std::string NumberOr(const std::optional<std::int64_t>& number, const char* none)
{
    return number ? std::to_string(*number) : none;
}

std::string JsonObject(const TrailEntry& entry, const std::string& text)
{
    return fmt::format(
        R"({{"id":{},"at":{},"by":{},"program":{},"step":{},"table":{},"row":{},"action":{},"before":{},"after":{},"text":{},"reason":{}}})",
        entry.id, JsonText(Moment(entry.at)), JsonOrNull(entry.by), JsonOrNull(entry.program), NumberOr(entry.step, "null"),
        JsonOrNull(entry.table), NumberOr(entry.row, "null"), JsonText(entry.action), Json(entry.before), Json(entry.after), JsonText(text),
        JsonOrNull(entry.reason));
}

std::string CsvLine(const TrailEntry& entry, const std::string& text)
{
    const auto row = [](const std::optional<TrailRow>& side) { return side ? CsvText(Json(side)) : std::string(); };
    return fmt::format("{},{},{},{},{},{},{},{},{},{},{},{}\r\n", entry.id, CsvText(Moment(entry.at)), CsvText(entry.by),
                       CsvText(entry.program), NumberOr(entry.step, ""), CsvText(entry.table), NumberOr(entry.row, ""),
                       CsvText(entry.action), row(entry.before), row(entry.after), CsvText(text), CsvText(entry.reason));
}

std::string TextLine(const TrailEntry& entry, const std::string& text)
{
    return fmt::format("{}  {}  {}{}\r\n", EntryMoment(entry), EntryPerson(entry), text, EntryReason(entry));
}

} // namespace

std::string HistoryIn(ReportForm form, const std::shared_ptr<CJetDB>& database, const TrailQuery& query)
{
    const CJetDB::Hold hold(database);
    EmployeeNames names(database);
    std::string text;
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        names.Learn(entry);
        const auto nameOf = [&](std::int64_t id) { return names.Of(id); };
        if (form == ReportForm::Json) {
            text += (text.empty() ? "\r\n" : ",\r\n") + HistoryJson(entry, nameOf);
        } else {
            text += HistoryLine(form, entry, nameOf);
        }
    });
    if (form == ReportForm::Json) {
        return "{\"changes\":[" + text + (text.empty() ? "" : "\r\n") + "]}\r\n";
    }
    return HistoryHeading(form) + text;
}

std::string HistoryJson(const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    return JsonObject(entry, EntrySentence(entry, nameOf));
}

std::string HistoryHeading(ReportForm form)
{
    return form == ReportForm::Csv ? kCsvHeading : "";
}

std::string HistoryLine(ReportForm form, const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    const std::string sentence = EntrySentence(entry, nameOf);
    return form == ReportForm::Csv ? CsvLine(entry, sentence) : TextLine(entry, sentence);
}

} // namespace ptk
