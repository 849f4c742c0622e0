#include "reports/ReportCatalog.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "platform/Text.h"

#include <algorithm>
#include <unordered_map>

namespace ptk {

const std::array<ReportEntry, 5>& ReportCatalog()
{
    static constexpr std::array<ReportEntry, 5> kEntries{{
        {ReportKind::TimeCard, "Timecard", true, true, ReportDates::PayPeriod},
        {ReportKind::Review, "Accountants Review", true, false, ReportDates::PayPeriod},
        {ReportKind::YTDTotals, "Year-To-Date Totals", true, true, ReportDates::YearToDate},
        {ReportKind::Employee, "Employee Records", true, false, ReportDates::None},
        {ReportKind::PhoneBook, "Phone Book", false, false, ReportDates::None},
    }};
    return kEntries;
}

const ReportEntry* FindReport(std::string_view name)
{
    const auto& entries = ReportCatalog();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const ReportEntry& entry) { return entry.name == name; });
    return found == entries.end() ? nullptr : &*found;
}

DateTime PeriodEnd(DateTime from, std::int16_t periodLength)
{
    return from.AddDays(periodLength);
}

ReportPeriod DefaultPayPeriod(DateTime today, std::int16_t periodLength)
{
    const CalendarDate date = today.Date();
    // The second half starts on the 15th, which belongs to both, deliberately.
    const DateTime from(CalendarDate{date.year, date.month, date.day <= 15 ? 1 : 15});
    return {from, PeriodEnd(from, periodLength)};
}

ReportPeriod YearToDate(DateTime today)
{
    return {DateTime(CalendarDate{today.Date().year, 1, 1}), DateTime(today.Date())};
}

namespace {

std::unordered_map<std::string, std::shared_ptr<CEmployee>> ByDisplayName(CEmployeeList& employees)
{
    std::unordered_map<std::string, std::shared_ptr<CEmployee>> byName;
    byName.reserve(static_cast<std::size_t>(employees.Count()));
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        const auto employee = employees.Item(i);
        if (employee != nullptr) {
            byName.try_emplace(employee->DisplayName(), employee); // of namesakes the first is found
        }
    }
    return byName;
}

bool IsAdministrator(const CEmployee& employee)
{
    return LowerCase(employee.FirstName() + employee.LastName()).find("administrator") != std::string::npos;
}

} // namespace

std::shared_ptr<CEmployeeList> EmployeesByName(CEmployeeList& employees, const std::vector<std::string>& names)
{
    const auto byName = ByDisplayName(employees);
    auto found = std::make_shared<CEmployeeList>();
    for (const std::string& name : names) {
        const auto entry = byName.find(name);
        found->Insert(entry == byName.end() ? nullptr : entry->second, found->Count() + 1);
    }
    return found;
}

std::shared_ptr<CEmployeeList> PhoneBookEmployees(CEmployeeList& employees, const std::vector<std::string>& names)
{
    const auto all = EmployeesByName(employees, names);
    auto listed = std::make_shared<CEmployeeList>();
    for (std::int32_t i = 1; i <= all->Count(); ++i) {
        const auto employee = all->Item(i);
        if (employee != nullptr && !IsAdministrator(*employee)) {
            listed->Insert(employee, listed->Count() + 1);
        }
    }
    return listed;
}

} // namespace ptk
