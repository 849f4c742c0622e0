#include "office/overview/Overview.h"

#include "model/CEmployeeList.h"
#include "model/check/PunchReader.h"
#include "office/overview/OverviewRows.h"
#include "platform/text/DecimalSum.h"
#include "store/CJetDB.h"

namespace ptk {

CheckTerms TermsOf(const Overview& overview)
{
    return {overview.period, overview.made, overview.limits};
}

OverviewRow RowOf(const Overview& overview, CardChecker& checker, const std::shared_ptr<CEmployee>& employee)
{
    OverviewRow row;
    row.employee = employee;
    row.check = checker.Check(*employee);
    row.figures = row.check.figures;
    row.paid = checker.Paid(employee->EmployeeID());
    row.records = checker.RecordsOfPeriod();
    if (overview.withRemedies) {
        row.remedies = checker.Remedies(*employee, row.check, overview.autoShiftEnd);
    }
    return row;
}

std::string OverviewRow::LongestWeek() const
{
    return HoursText(check.LongestWeek());
}

Employees OfferedEmployees(CEmployeeList& employees)
{
    Employees offered;
    for (std::int32_t i = 1; i <= employees.Count(); ++i) {
        const auto employee = employees.Item(i);
        if (employee != nullptr && employee->OfferedOnTimeCards()) {
            offered.push_back(employee);
        }
    }
    return offered;
}

// If nobody can end the reading in between, the rows of the next people are asked for while these are looked at.
bool ReadOverview(Overview& overview, const std::shared_ptr<CJetDB>& database, std::span<const std::shared_ptr<CEmployee>> employees,
                  const RowTaken& taken)
{
    const CJetDB::Hold hold(database);
    CardChecker checker(database, TermsOf(overview));
    overview.rows.reserve(overview.rows.size() + employees.size());
    for (std::size_t i = 0; i < employees.size(); ++i) {
        if (i % PunchReader::kAtOnce == 0) {
            checker.ReadAhead(NextEmployeeIDs(employees, i));
            if (const std::size_t next = i + PunchReader::kAtOnce; !taken && next < employees.size()) {
                checker.AskAhead(NextEmployeeIDs(employees, next));
            }
        }
        overview.rows.push_back(RowOf(overview, checker, employees[i]));
        if (taken && !taken(overview.rows.back())) {
            return false;
        }
    }
    return true;
}

OverviewTotals TotalsOf(std::span<const OverviewRow> rows, bool onlyProblems)
{
    OverviewTotals totals;
    DecimalSum regular;
    DecimalSum overtime;
    DecimalSum gross;
    for (const OverviewRow& row : rows) {
        if (onlyProblems && row.check.problems == 0) {
            continue;
        }
        totals.clockedIn += row.check.clockedIn ? 1 : 0;
        totals.problems += row.check.problems;
        totals.notices += row.check.notices;
        totals.paid += row.paid ? 1 : 0;
        totals.changed += row.check.changed ? 1 : 0;
        if (row.figures) {
            regular.Add(row.figures->regular);
            overtime.Add(row.figures->overtime);
            gross.Add(row.figures->gross);
        }
    }
    totals.figures = {regular.Text(), overtime.Text(), gross.Text()};
    return totals;
}

} // namespace ptk
