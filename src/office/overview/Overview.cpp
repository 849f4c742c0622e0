#include "office/overview/Overview.h"

#include "model/CEmployeeList.h"
#include "model/check/PunchReader.h"
#include "platform/text/DecimalSum.h"
#include "store/CJetDB.h"

namespace ptk {

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

bool ReadOverview(Overview& overview, const std::shared_ptr<CJetDB>& database, std::span<const std::shared_ptr<CEmployee>> employees,
                  const RowTaken& taken)
{
    const CJetDB::Hold hold(database);
    PunchReader reader(*database, overview.period, overview.limits.firstWeekday);
    overview.rows.reserve(overview.rows.size() + employees.size());
    for (const auto& employee : employees) {
        const Punches punches = reader.Read(employee->EmployeeID());
        OverviewRow& row = overview.rows.emplace_back();
        row.employee = employee;
        row.check = CheckCard({*employee, overview.period.from, overview.period.to}, punches, overview.made, overview.limits);
        row.figures = row.check.figures;
        if (taken && !taken(row)) {
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
