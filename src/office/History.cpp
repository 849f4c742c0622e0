#include "office/History.h"

#include "platform/DataText.h"
#include "platform/Text.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Change,When,Who,Program,Step,Table,Row,Action,Before,After,Text\r\n";

// In the order of the employee list; of any kind of value the text.
constexpr const char* kNames = "SELECT EmployeeID, IFNULL(CAST(FirstName AS TEXT), ''), IFNULL(CAST(LastName AS TEXT), '') FROM Employee "
                               "ORDER BY IFNULL(LastName, '') COLLATE NOCASE, IFNULL(FirstName, '') COLLATE NOCASE, EmployeeID";

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

std::string JsonLine(const TrailEntry& entry, const std::string& text)
{
    return fmt::format(
        R"({{"id":{},"at":{},"by":{},"program":{},"step":{},"table":{},"row":{},"action":{},"before":{},"after":{},"text":{}}})", entry.id,
        JsonText(Moment(entry.at)), JsonOrNull(entry.by), JsonOrNull(entry.program), NumberOr(entry.step, "null"), JsonOrNull(entry.table),
        NumberOr(entry.row, "null"), JsonText(entry.action), Json(entry.before), Json(entry.after), JsonText(text));
}

std::string CsvLine(const TrailEntry& entry, const std::string& text)
{
    const auto row = [](const std::optional<TrailRow>& side) { return side ? CsvText(Json(side)) : std::string(); };
    return fmt::format("{},{},{},{},{},{},{},{},{},{},{}\r\n", entry.id, CsvText(Moment(entry.at)), CsvText(entry.by),
                       CsvText(entry.program), NumberOr(entry.step, ""), CsvText(entry.table), NumberOr(entry.row, ""),
                       CsvText(entry.action), row(entry.before), row(entry.after), CsvText(text));
}

std::string TextLine(const TrailEntry& entry, const std::string& text)
{
    const auto moment = ParseDateTime(entry.at);
    const std::string who = entry.by.empty() ? "another program" : entry.by;
    return fmt::format("{}  {}  {}\r\n", moment ? FormatDateTime(*moment, "mm/dd/yyyy hh:mm:ss AM/PM") : entry.at, who, text);
}

} // namespace

EmployeeNames::EmployeeNames(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    const auto rows = RequireSelect(*database, kNames);
    rows->ForEachRow([&] {
        m_order.push_back(rows->Int64At(0));
        m_present[m_order.back()] = {std::string(rows->TextAt(1)), std::string(rows->TextAt(2))};
    });
    m_former = m_present;
}

void EmployeeNames::Name::Take(const TrailRow& row)
{
    const TrailValue* newFirst = ValueOf(row, "FirstName");
    const TrailValue* newLast = ValueOf(row, "LastName");
    first = newFirst == nullptr ? first : newFirst->text;
    last = newLast == nullptr ? last : newLast->text;
}

std::string EmployeeNames::Of(std::int64_t employeeID) const
{
    const auto found = m_present.find(employeeID);
    return found == m_present.end() ? std::string() : found->second.Display();
}

std::optional<std::int64_t> EmployeeNames::FirstOf(std::string_view displayName) const
{
    const auto found = std::find_if(m_order.begin(), m_order.end(), [&](std::int64_t id) { return Of(id) == displayName; });
    return found == m_order.end() ? std::nullopt : std::optional(*found);
}

void EmployeeNames::Learn(const TrailEntry& entry)
{
    if (entry.table == "Employee" && entry.row && entry.before && !entry.after) {
        const auto [gone, isNew] = m_present.try_emplace(*entry.row);
        if (isNew) {
            gone->second.Take(*entry.before);
        }
    }
}

std::string EmployeeNames::FormerOf(const TrailEntry& entry)
{
    Name& name = m_former[entry.row.value_or(0)];
    if (entry.before || entry.after) {
        name.Take(entry.before ? *entry.before : *entry.after);
    }
    return name.Display();
}

std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, const std::string& name)
{
    const CJetDB::Hold hold(database);
    EmployeeNames names(database);
    if (const auto present = names.FirstOf(name)) {
        return present;
    }
    std::optional<std::int64_t> found;
    TrailQuery query;
    query.kind = TrailKind::Employees;
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        if (names.FormerOf(entry) == name && !found) {
            found = entry.row;
        }
    });
    return found;
}

std::string HistoryIn(HistoryForm form, const std::shared_ptr<CJetDB>& database, const TrailQuery& query)
{
    const CJetDB::Hold hold(database);
    EmployeeNames names(database);
    std::string text;
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        names.Learn(entry);
        const std::string sentence = EntrySentence(entry, [&](std::int64_t id) { return names.Of(id); });
        if (form == HistoryForm::Json) {
            text += (text.empty() ? "\r\n" : ",\r\n") + JsonLine(entry, sentence);
        } else {
            text += form == HistoryForm::Csv ? CsvLine(entry, sentence) : TextLine(entry, sentence);
        }
    });
    if (form == HistoryForm::Json) {
        return "{\"changes\":[" + text + (text.empty() ? "" : "\r\n") + "]}\r\n";
    }
    return form == HistoryForm::Csv ? kCsvHeading + text : text;
}

std::string HistoryCsv(const std::vector<TrailEntry>& entries, const NameOfEmployee& nameOf)
{
    std::string text = kCsvHeading;
    for (const TrailEntry& entry : entries) {
        text += CsvLine(entry, EntrySentence(entry, nameOf));
    }
    return text;
}

} // namespace ptk
