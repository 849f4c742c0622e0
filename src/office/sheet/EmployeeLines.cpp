#include "office/sheet/EmployeeLines.h"

#include "model/CEmployee.h"
#include "office/sheet/SheetHeadings.h"
#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Joined.h"
#include "reports/EmployeeRecords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/rows/RowReader.h"

#include <algorithm>
#include <fmt/format.h>
#include <iterator>
#include <optional>
#include <span>
#include <unordered_map>

namespace ptk {

namespace {

constexpr const char* kAllEmployees = "SELECT {} FROM Employee ORDER BY EmployeeID";
constexpr std::string_view kKey = "EmployeeID";
constexpr std::int32_t kRowsAtATime = 256;
constexpr std::size_t kMostLeftAside = 50;  // headings that are named
constexpr std::int32_t kAdministrator = 39; // its EmployeeID

constexpr auto kSameField = "the columns {} and {} mean the same";
constexpr auto kNoSuchField = "the file has no column {}";
constexpr auto kSeveralKnown = "several people have {}";
constexpr auto kOtherLine = "{} has other fields on line {}";
constexpr auto kMissing = "empty";
constexpr auto kOfAdministrator = "the administrator may not be changed";

// Columns that a file of employees does not have get constants, because nobody looks at them.
std::string LookedAtColumns()
{
    std::vector<std::string> columns;
    for (const StoredColumn* column : EmployeeTable().columns) {
        const bool looksAt = column->name == kKey || std::ranges::count(StoredEmployeeColumns(), std::string_view(column->name)) != 0;
        const char* const none = column->kind == ColumnKind::Flag ? "FALSE" : "NULL";
        columns.push_back(looksAt ? column->name : fmt::format("{} AS {}", none, column->name));
    }
    return Joined(columns, ", ");
}

std::unordered_multimap<std::int32_t, CEmployee> ReadByNumber(const PrepareStatement& prepare)
{
    std::unordered_multimap<std::int32_t, CEmployee> employees;
    const auto statement = prepare(fmt::format(kAllEmployees, LookedAtColumns()));
    for (std::int32_t read = kRowsAtATime; read == kRowsAtATime;) {
        const auto rows = statement->ReadRows(kRowsAtATime);
        read = rows->RecordCount();
        for (RowReader reader(*rows, EmployeeTable()); !rows->EndOfFile(); rows->MoveNext()) {
            const EmployeeRow row = reader.ReadEmployee();
            employees.emplace(row.EmployeeNumber, CEmployee(row));
        }
    }
    return employees;
}

Value& At(EmployeeValues& values, EmployeeField field)
{
    return values[static_cast<std::size_t>(field)];
}

// The values of a new employee before those of the file are set.
EmployeeValues NewEmployee()
{
    EmployeeValues values;
    values.fill(std::string());
    for (const EmployeeField day : {EmployeeField::DateOfBirth, EmployeeField::HireDate, EmployeeField::ReleaseDate}) {
        At(values, day) = Value();
    }
    At(values, EmployeeField::Active) = true;
    At(values, EmployeeField::PayRate) = 0.0F;
    At(values, EmployeeField::OvertimePayRate) = 0.0F;
    return values;
}

using FieldPlaces = std::array<std::optional<std::size_t>, kEmployeeFieldCount>; // in the file, by EmployeeField

FieldPlaces PlaceFields(const SheetHeadings& headings, std::vector<std::string>& leftAside)
{
    FieldPlaces places;
    for (std::size_t place = 0; place < headings.Count(); ++place) {
        const std::string& heading = headings.At(place);
        const auto field = FindEmployeeField(headings.NormalizedAt(place));
        if (!field) {
            leftAside.insert(leftAside.end(), heading.empty() || leftAside.size() == kMostLeftAside ? 0 : 1, heading);
            continue;
        }
        auto& own = places[static_cast<std::size_t>(*field)];
        if (own) {
            throw Failure(0, "PTK", fmt::format(kSameField, headings.At(*own), heading));
        }
        own = place;
    }
    return places;
}

// Compares a file with the stored employees, line by line.
class EmployeeJudge
{
public:
    EmployeeJudge(const SheetHeadings& headings, const PrepareStatement& prepare, const TakesDifference& takes, EmployeeLines& read)
        : m_headings(headings), m_places(PlaceFields(headings, read.leftAside)), m_known(ReadByNumber(prepare)), m_takes(takes),
          m_read(read)
    {
    }

    // Raises a failure without a number if the file lacks the field.
    void RequireField(EmployeeField field) const
    {
        if (!PlaceAt(field)) {
            throw Failure(0, "PTK", fmt::format(kNoSuchField, HeadingOf(field)));
        }
    }

    void Take(const CsvRecord& record)
    {
        ++m_read.lines;
        m_cells = record.cells;
        try {
            m_headings.RefuseStrange(record);
            const std::int32_t number = Read(EmployeeField::Number).ToInt32();
            if (const auto said = m_said.find(number); said != m_said.end()) {
                RequireSame(said->second);
                ++m_read.there;
            } else {
                Judge(number);
                m_said.emplace(number, Said{record.line, AllFields()});
            }
        } catch (const LineRefused& refused) {
            m_read.refused.push_back({record.line, refused.reason});
        }
    }

private:
    [[nodiscard]] const std::optional<std::size_t>& PlaceAt(EmployeeField field) const { return m_places[static_cast<std::size_t>(field)]; }

    // REQUIRES: the file has the field.
    [[nodiscard]] std::string_view Cell(EmployeeField field) const
    {
        const std::size_t place = *PlaceAt(field);
        return place < m_cells.size() ? Trimmed(m_cells[place]) : std::string_view();
    }

    [[nodiscard]] Value Read(EmployeeField field) const { return ReadField(field, Cell(field), ShownHeading(field)); }

    // The field's heading in the file; our own if the file lacks it.
    [[nodiscard]] std::string ShownHeading(EmployeeField field) const
    {
        return PlaceAt(field) ? m_headings.At(*PlaceAt(field)) : HeadingOf(field);
    }

    [[noreturn]] void Refuse(EmployeeField field, std::string_view reason) const
    {
        throw LineRefused{fmt::format("{}: {}", ShownHeading(field), reason)};
    }

    // Refuses a line without a last name or a social security number, as the Employees page does.
    void RequireWhole(EmployeeValues& values) const
    {
        for (const EmployeeField field : {EmployeeField::LastName, EmployeeField::Ssn}) {
            if (At(values, field).ToText().empty()) {
                Refuse(field, kMissing);
            }
        }
    }

    void Judge(std::int32_t number)
    {
        const auto [first, end] = m_known.equal_range(number);
        if (first == end) {
            Add();
        } else if (std::next(first) == end) {
            Compare(first->second);
        } else {
            Refuse(EmployeeField::Number, fmt::format(kSeveralKnown, ShownCell(Cell(EmployeeField::Number))));
        }
    }

    struct Said
    {
        std::int64_t line;
        std::string fields;
    };

    // Refuses a line whose employee number stood on an earlier line with other fields.
    void RequireSame(const Said& said) const
    {
        if (said.fields != AllFields()) {
            Refuse(EmployeeField::Number, fmt::format(kOtherLine, ShownCell(Cell(EmployeeField::Number)), said.line));
        }
    }

    // All fields of the line except the number, which may be written in several ways.
    [[nodiscard]] std::string AllFields() const
    {
        std::string fields;
        ForEachField([&](EmployeeField field) { fields += field == EmployeeField::Number ? "" : fmt::format("{}\n", Cell(field)); });
        return fields;
    }

    template <typename Visit>
    void ForEachField(Visit visit) const
    {
        for (std::size_t i = 0; i < kEmployeeFieldCount; ++i) {
            if (m_places[i]) {
                visit(static_cast<EmployeeField>(i));
            }
        }
    }

    void Add()
    {
        EmployeeValues values = NewEmployee();
        ForEachField([&](EmployeeField field) { At(values, field) = Read(field); });
        RequireWhole(values);
        m_read.added.push_back(std::move(values));
    }

    void Compare(const CEmployee& employee)
    {
        const ReportRow stored = EmployeeRecord(employee);
        EmployeeChange change{employee.EmployeeID(), {}};
        std::vector<EmployeeDifference> differences;
        ForEachField([&](EmployeeField field) {
            const Value& value = stored[static_cast<std::size_t>(field)];
            const Value given = IsPrintedAs(field, value, Cell(field)) ? value : Read(field);
            EmployeeDifference difference = Differing(employee, field, value, given);
            if (field == EmployeeField::Number || difference.stored == difference.given) {
                return;
            }
            difference.taken = m_takes(difference);
            if (difference.taken) {
                change.fields.emplace_back(field, given);
            }
            differences.push_back(std::move(difference));
        });
        Keep(employee, stored, std::move(change));
        std::move(differences.begin(), differences.end(), std::back_inserter(m_read.differences));
    }

    static EmployeeDifference Differing(const CEmployee& employee, EmployeeField field, const Value& stored, const Value& given)
    {
        return {.employee = employee.EmployeeID(),
                .number = employee.EmployeeNumber(),
                .name = employee.DisplayName(),
                .field = field,
                .stored = PrintedField(field, stored),
                .given = PrintedField(field, given)};
    }

    void Keep(const CEmployee& employee, const ReportRow& stored, EmployeeChange change)
    {
        if (change.fields.empty()) {
            ++m_read.there;
            return;
        }
        if (employee.EmployeeID() == kAdministrator) {
            Refuse(EmployeeField::Number, kOfAdministrator);
        }
        EmployeeValues values;
        std::copy(stored.begin(), stored.end(), values.begin());
        for (const auto& [field, value] : change.fields) {
            At(values, field) = value;
        }
        RequireWhole(values);
        m_read.changed.push_back(std::move(change));
    }

    const SheetHeadings& m_headings;
    FieldPlaces m_places;
    std::unordered_multimap<std::int32_t, CEmployee> m_known; // by employee number
    const TakesDifference& m_takes;
    EmployeeLines& m_read;
    std::unordered_map<std::int32_t, Said> m_said; // earlier lines, by employee number
    std::span<const std::string> m_cells;          // of the line that is being read
};

} // namespace

EmployeeLines ReadEmployeeLines(std::string_view text, const PrepareStatement& prepare, const std::vector<EmployeeField>& wanted,
                                const TakesDifference& takes, const GoesOn& goesOn)
{
    SheetReader reader(text);
    const SheetHeadings headings(reader.Record().cells);
    EmployeeLines read;
    EmployeeJudge judge(headings, prepare, takes, read);
    judge.RequireField(EmployeeField::Number);
    for (const EmployeeField field : wanted) {
        judge.RequireField(field);
    }
    while (reader.Next()) {
        judge.Take(reader.Record());
        AskWhetherToGoOn(goesOn, read.lines);
    }
    return read;
}

} // namespace ptk
