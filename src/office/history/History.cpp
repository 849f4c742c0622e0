#include "office/history/History.h"

#include "platform/text/CsvLine.h"
#include "platform/text/DataText.h"
#include "platform/text/JsonWriter.h"
#include "store/CJetDB.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Change,When,Who,Program,Step,Table,Row,Action,Before,After,Text,Reason\r\n";

// The moment in ISO form: "2003-03-05 17:00:00" becomes "2003-03-05T17:00:00".
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
    JsonObject object;
    for (const TrailValue& value : *row) {
        object.Json(value.column, Json(value));
    }
    return object.Done();
}

std::string JsonLine(const TrailEntry& entry, const std::string& text)
{
    return JsonObject()
        .Number("id", entry.id)
        .Text("at", Moment(entry.at))
        .TextOrNull("by", entry.by)
        .TextOrNull("program", entry.program)
        .NumberOrNull("step", entry.step)
        .TextOrNull("table", entry.table)
        .NumberOrNull("row", entry.row)
        .Text("action", entry.action)
        .Json("before", Json(entry.before))
        .Json("after", Json(entry.after))
        .Text("text", text)
        .TextOrNull("reason", entry.reason)
        .Done();
}

std::string LineInCsv(const TrailEntry& entry, const std::string& text)
{
    CsvLine line;
    line.Number(entry.id).Text(Moment(entry.at)).Text(entry.by).Text(entry.program).Number(entry.step).Text(entry.table);
    line.Number(entry.row).Text(entry.action);
    for (const auto& side : {entry.before, entry.after}) {
        line.Text(side ? Json(side) : "");
    }
    return line.Text(text).Text(entry.reason).Done();
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
    return JsonLine(entry, EntrySentence(entry, nameOf));
}

std::string HistoryHeading(ReportForm form)
{
    return form == ReportForm::Csv ? kCsvHeading : "";
}

std::string HistoryLine(ReportForm form, const TrailEntry& entry, const NameOfEmployee& nameOf)
{
    const std::string sentence = EntrySentence(entry, nameOf);
    return form == ReportForm::Csv ? LineInCsv(entry, sentence) : TextLine(entry, sentence);
}

} // namespace ptk
