#include "office/History.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/DataText.h"
#include "platform/Text.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kCsvHeading = "Change,When,Who,Program,Step,Table,Row,Action,Before,After,Text\r\n";

std::string FullName(const std::string& first, const std::string& last)
{
    return first.empty() ? last : first + " " + last;
}

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

// The names that a row of Employee had, walking back through its changes.
class FormerNames
{
public:
    explicit FormerNames(CEmployeeList& employees)
    {
        for (std::int32_t i = 1; i <= employees.Count(); ++i) {
            if (const auto employee = employees.Item(i)) {
                m_names[employee->EmployeeID()] = {employee->FirstName(), employee->LastName()};
            }
        }
    }

    // What the row was called right before this change, or after it when it was added.
    std::string Before(const TrailEntry& entry)
    {
        auto& [first, last] = m_names[entry.row.value_or(0)];
        if (const auto& row = entry.before ? entry.before : entry.after) {
            Take(*row, "FirstName", first);
            Take(*row, "LastName", last);
        }
        return FullName(first, last);
    }

private:
    static void Take(const TrailRow& row, const char* column, std::string& name)
    {
        if (const TrailValue* value = ValueOf(row, column)) {
            name = value->text;
        }
    }

    std::map<std::int64_t, std::pair<std::string, std::string>> m_names;
};

} // namespace

EmployeeNames::EmployeeNames(CEmployeeList& employees)
{
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        if (const auto employee = employees.Item(i)) {
            m_names[employee->EmployeeID()] = employee->DisplayName();
        }
    }
}

std::string EmployeeNames::Of(std::int64_t employeeID) const
{
    const auto found = m_names.find(employeeID);
    return found == m_names.end() ? std::string() : found->second;
}

void EmployeeNames::Learn(const TrailEntry& entry)
{
    if (entry.table == "Employee" && entry.row && entry.before && !entry.after) {
        const auto text = [&](const char* column) {
            const TrailValue* value = ValueOf(*entry.before, column);
            return value == nullptr ? std::string() : value->text;
        };
        m_names.try_emplace(*entry.row, FullName(text("FirstName"), text("LastName")));
    }
}

std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, CEmployeeList& employees, const std::string& name)
{
    if (const auto employee = employees.GetEmployeeByName(name)) {
        return employee->EmployeeID();
    }
    std::optional<std::int64_t> found;
    FormerNames names(employees);
    TrailQuery query;
    query.table = "Employee";
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        if (names.Before(entry) == name && !found) {
            found = entry.row;
        }
    });
    return found;
}

std::string HistoryIn(HistoryForm form, const std::shared_ptr<CJetDB>& database, CEmployeeList& employees, const TrailQuery& query)
{
    EmployeeNames names(employees);
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
