// One person's data as JSON and as pages.
#include "model/CEmployee.h"
#include "office/history/History.h"
#include "office/history/HistoryTable.h"
#include "office/person/PersonData.h"
#include "platform/text/DayText.h"
#include "platform/text/JsonWriter.h"
#include "platform/text/Text.h"
#include "reports/EmployeeRecords.h"
#include "reports/forms/CellText.h"
#include "reports/forms/JsonRenderer.h"
#include "reports/forms/ReportDocument.h"

#include <algorithm>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kTitle = "What is kept about {}";
constexpr auto kRecordTitle = "The employee record";
constexpr auto kPunchesTitle = "{}: {} records, {} hours";
constexpr auto kUnreadableTitle = "Records without a readable start: {}";
constexpr auto kPaidTitle = "What was paid";
constexpr auto kPaidLine = "{} - {}  {} + {} hours, {}";
constexpr auto kChangesTitle = "History";
constexpr auto kElsewhereTitle = "Files that may hold more";
constexpr auto kNothing = "nothing";
constexpr auto kStillOpen = "open";
constexpr auto kIndent = "    ";
constexpr int kNoYear = 0;

// The columns behind those of the employee records.
constexpr ReportColumn kFurther[] = {{"ID", CellType::WholeNumber},           {"Name", CellType::Text},
                                     {"Company ID", CellType::WholeNumber},   {"Company", CellType::Text},
                                     {"Auto Deduct", CellType::Boolean},      {"Lunch Minutes", CellType::WholeNumber},
                                     {"Break Minutes", CellType::WholeNumber}};

std::span<const ReportColumn> PersonColumns()
{
    static const std::vector<ReportColumn> columns = [] {
        std::vector<ReportColumn> all(EmployeeRecordColumns().begin(), EmployeeRecordColumns().end());
        all.insert(all.end(), std::begin(kFurther), std::end(kFurther));
        all.front().name = "Number"; // the name that all data about people use for it
        return all;
    }();
    return columns;
}

ReportRow PersonRow(const PersonData& person)
{
    const CEmployee& employee = *person.employee;
    ReportRow row = EmployeeRecord(employee);
    const Value further[] = {employee.EmployeeID(),
                             employee.DisplayName(),
                             employee.CompanyID(),
                             person.company.empty() ? Value() : Value(person.company),
                             employee.AutoDeduct(),
                             employee.AutoDeductLunchLength(),
                             employee.AutoDeductBreakLength()};
    row.insert(row.end(), std::begin(further), std::end(further));
    return row;
}

// Answers only this person's name, so that others appear by their EmployeeIDs.
NameOfEmployee OnlyThisName(const PersonData& person)
{
    return [&employee = *person.employee](std::int64_t id) { return id == employee.EmployeeID() ? employee.DisplayName() : std::string(); };
}

int YearOf(const PersonPunch& punch)
{
    return punch.start ? punch.start->Date().year : kNoYear;
}

std::string PunchJson(const PersonPunch& punch)
{
    return JsonObject()
        .NumberOrNull("year", punch.start ? std::optional<std::int64_t>(YearOf(punch)) : std::nullopt)
        .Number("id", punch.id)
        .Moment("start", punch.start)
        .Moment("end", punch.end)
        .NumberOrNull("minutes", punch.Minutes())
        .Done();
}

std::string PaidJson(const Closing& closing)
{
    return JsonObject()
        .Day("from", closing.period.from)
        .Day("to", closing.period.to)
        .Moment("at", closing.paidAt)
        .TextOrNull("by", closing.paidBy)
        .TextOrNull("regular", closing.regular)
        .TextOrNull("overtime", closing.overtime)
        .TextOrNull("gross", closing.gross)
        .Done();
}

std::string FileJson(const PersonFile& file)
{
    return JsonObject().Text("kind", file.kind).Text("file", file.path).Done();
}

template <typename Rows, typename Write>
std::string ListInLines(const Rows& rows, Write json)
{
    return '[' + JsonLines(rows, json) + (rows.empty() ? "]" : "\r\n]");
}

std::string PersonJson(const PersonData& person)
{
    const auto change = [nameOf = OnlyThisName(person)](const TrailEntry& entry) { return HistoryJson(entry, nameOf); };
    return fmt::format("{{\"employee\":{},\r\n\"records\":{},\r\n\"paid\":{},\r\n\"changes\":{},\r\n\"elsewhere\":{}}}\r\n",
                       JsonRowOf(PersonRow(person), {PersonColumns(), {}}), ListInLines(person.punches, PunchJson),
                       ListInLines(person.paid, PaidJson), ListInLines(person.changes, change), ListInLines(person.elsewhere, FileJson));
}

class PersonDocument
{
public:
    explicit PersonDocument(const PersonData& person) : m_person(person)
    {
        m_document.title = fmt::format(kTitle, person.employee->DisplayName());
        AddRecord();
        AddPunches();
        AddPaid();
        AddChanges();
        AddElsewhere();
    }

    [[nodiscard]] const ReportDocument& Document() const { return m_document; }

private:
    // Adds a section. Its title stays on one page with its first line; a page may end behind every other line.
    void AddLines(const std::string& title, std::vector<std::string> lines)
    {
        lines.resize(std::max<std::size_t>(lines.size(), 1), kNothing);
        m_document.BeginGroup();
        m_document.Add(title);
        for (const std::string& line : lines) {
            m_document.Add(kIndent + line);
            m_document.BeginGroup();
        }
        m_document.Add("");
    }

    void AddRecord()
    {
        const ReportRow row = PersonRow(m_person);
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const ReportColumn& column = PersonColumns()[i];
            lines.push_back(fmt::format("{}: {}", column.name, CellText(column.type, row[i])));
        }
        AddLines(kRecordTitle, lines);
    }

    static std::string PunchLine(const PersonPunch& punch)
    {
        const auto text = [](const std::optional<DateTime>& moment, const char* none) {
            return moment ? FormatDateTime(*moment, "mm/dd/yyyy hh:mm:ss AM/PM") : std::string(none);
        };
        const auto minutes = punch.Minutes();
        return fmt::format("{} - {}{}", text(punch.start, kNothing), text(punch.end, kStillOpen),
                           minutes ? fmt::format("  {}", HoursOf(*minutes)) : std::string());
    }

    static std::string HoursOf(std::int64_t minutes) { return fmt::format("{}:{:02}", minutes / 60, minutes % 60); }

    // Adds the records of each year. Those without a readable start come first or last, wherever the database sorts them.
    void AddPunches()
    {
        for (auto at = m_person.punches.begin(); at != m_person.punches.end();) {
            const auto end =
                std::find_if(at, m_person.punches.end(), [&](const PersonPunch& punch) { return YearOf(punch) != YearOf(*at); });
            std::int64_t minutes = 0;
            std::vector<std::string> lines;
            for (const PersonPunch& punch : std::span(at, end)) {
                minutes += punch.Minutes().value_or(0);
                lines.push_back(PunchLine(punch));
            }
            AddLines(YearOf(*at) == kNoYear ? fmt::format(kUnreadableTitle, lines.size())
                                            : fmt::format(kPunchesTitle, YearOf(*at), lines.size(), HoursOf(minutes)),
                     lines);
            at = end;
        }
    }

    void AddPaid()
    {
        std::vector<std::string> lines;
        for (const Closing& closing : m_person.paid) {
            lines.push_back(fmt::format(kPaidLine, DayText(closing.period.from), DayText(closing.period.to), closing.regular,
                                        closing.overtime, closing.gross));
        }
        AddLines(kPaidTitle, lines);
    }

    void AddChanges()
    {
        const auto nameOf = OnlyThisName(m_person);
        std::vector<std::string> lines;
        for (const TrailEntry& entry : m_person.changes) {
            lines.push_back(InOneText(HistoryCellsOf(entry, nameOf)));
        }
        AddLines(kChangesTitle, lines);
    }

    void AddElsewhere()
    {
        std::vector<std::string> lines;
        for (const PersonFile& file : m_person.elsewhere) {
            lines.push_back(fmt::format("{}: {}", file.kind, file.path));
        }
        AddLines(kElsewhereTitle, lines);
    }

    const PersonData& m_person;
    ReportDocument m_document;
};

} // namespace

std::string PersonIn(ReportForm form, const PersonData& person)
{
    if (form == ReportForm::Json) {
        return PersonJson(person);
    }
    const PersonDocument pages(person);
    return FileOf(form, {&pages.Document(), 1}, person.made);
}

} // namespace ptk
