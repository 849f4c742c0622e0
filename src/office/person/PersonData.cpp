#include "office/person/PersonData.h"

#include "model/CEmployeeList.h"
#include "model/payday/ClosingReader.h"
#include "office/person/PersonFiles.h"
#include "platform/Failure.h"
#include "platform/text/Joined.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr auto kPunches = "SELECT TimeRecordID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = :employee "
                          "ORDER BY StartTime, EndTime, TimeRecordID";
constexpr auto kCompany = "SELECT COALESCE(CAST(Name AS TEXT), '') FROM Company WHERE CompanyID = :company";
constexpr auto kNamesakes = "{} people are named {}: the employee numbers are {}; say which one";
constexpr auto kNoSuchPerson = "there is no such employee";

std::vector<std::shared_ptr<CEmployee>> Named(CEmployeeList& employees, const std::string& name, std::optional<std::int32_t> number)
{
    std::vector<std::shared_ptr<CEmployee>> found;
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        const auto employee = employees.Item(i);
        if (employee != nullptr && employee->HasDisplayName(name) &&
            employee->EmployeeNumber() == number.value_or(employee->EmployeeNumber())) {
            found.push_back(employee);
        }
    }
    return found;
}

std::optional<DateTime> MomentAt(const Statement& row, int column)
{
    const auto moment = row.StoredDateAt(column);
    return moment && !moment->IsZero() ? moment : std::nullopt;
}

std::vector<PersonPunch> ReadPunchesOf(CJetDB& database, std::int32_t employeeID)
{
    std::vector<PersonPunch> punches;
    const auto rows = RequireSelect(database, kPunches);
    rows->Bind("employee", employeeID);
    rows->ForEachRow([&] { punches.push_back({rows->Int64At(0), MomentAt(*rows, 1), MomentAt(*rows, 2)}); });
    return punches;
}

std::vector<TrailEntry> ReadChangesOf(const std::shared_ptr<CJetDB>& database, std::int32_t employeeID)
{
    TrailQuery query;
    query.employee = employeeID;
    return ReadTrail(database, query);
}

std::string CompanyOf(CJetDB& database, const CEmployee& employee)
{
    std::string name;
    const auto rows = RequireSelect(database, kCompany);
    rows->Bind("company", employee.CompanyID());
    rows->ForEachRow([&] { name = rows->TextAt(0); });
    return name;
}

} // namespace

std::optional<std::int64_t> PersonPunch::Minutes() const
{
    if (!start || !end || *end < *start) {
        return std::nullopt;
    }
    return end->MinuteNumber() - start->MinuteNumber();
}

std::shared_ptr<CEmployee> FindPerson(const std::shared_ptr<CJetDB>& database, const std::string& name, std::optional<std::int32_t> number)
{
    const auto found = Named(*StoredEmployees(database), name, number);
    if (found.empty()) {
        throw Failure(timecard::NoEmployee, "PTK", kNoSuchPerson);
    }
    if (found.size() > 1) {
        std::vector<std::int32_t> numbers;
        numbers.reserve(found.size());
        for (const auto& employee : found) {
            numbers.push_back(employee->EmployeeNumber());
        }
        throw Failure(0, "PTK", fmt::format(kNamesakes, found.size(), name, Joined(numbers, ", ")));
    }
    return found.front();
}

PersonData ReadPerson(const std::shared_ptr<CJetDB>& database, std::int32_t employeeID, const PersonPlaces& places, DateTime now)
{
    PersonData person;
    person.made = now;
    {
        const CJetDB::Hold hold(database);
        const auto employees = StoredEmployees(database);
        person.employee = employees->GetEmployeeByID(employeeID);
        if (person.employee == nullptr) {
            throw Failure(timecard::NoEmployee, "PTK", kNoSuchPerson);
        }
        RequireOpen(*database); // the list has closed it, at least for its callers
        person.company = CompanyOf(*database, *person.employee);
        person.punches = ReadPunchesOf(*database, employeeID);
        person.paid = ReadClosingsOf(database, employeeID);
        person.changes = ReadChangesOf(database, employeeID);
        person.elsewhere = FilesElsewhere(places, *employees, *person.employee);
    }
    return person;
}

} // namespace ptk
