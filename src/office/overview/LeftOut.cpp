// Finds who has shifts in a period and is not in the list, so that nobody who is owed pay is forgotten.
#include "model/CEmployeeList.h"
#include "model/check/PunchPlace.h"
#include "office/overview/OverviewRows.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace ptk {

namespace {

using Numbers = std::set<std::int64_t>;
using Found = std::vector<std::optional<std::int64_t>>; // EmployeeIDs in their order; none for records without one

bool Before(const std::optional<std::int64_t>& left, const std::optional<std::int64_t>& right)
{
    return left && (!right || *left < *right);
}

// The EmployeeIDs of records that may lie in the period.
Found WithRecords(CJetDB& database, const PayPeriod& period)
{
    const auto rows = RequireSelect(database, punchsql::EmployeesWithRecords(database.Words()));
    const std::int64_t daysBefore = period.from.DayNumber() > DateTime::kFirstDay ? 1 : 0; // a shift of up to a day can cross the start
    rows->Bind("first", period.from.AddDays(-daysBefore));
    rows->Bind("last", MidnightAfter(period.to));
    Found found;
    rows->ForEachRow([&] { found.push_back(rows->KindAt(0) == CellKind::Number ? std::optional(rows->Int64At(0)) : std::nullopt); });
    std::sort(found.begin(), found.end(), Before);
    found.erase(std::unique(found.begin(), found.end()), found.end()); // an EmployeeID that is no number counts as none
    return found;
}

Employees AllOf(CEmployeeList& list)
{
    Employees all;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        if (auto employee = list.Item(i); employee != nullptr) {
            all.push_back(std::move(employee));
        }
    }
    return all;
}

LeftOutReason ReasonFor(const CEmployee& employee)
{
    return employee.EmployeeActive() ? LeftOutReason::Administrator : LeftOutReason::Inactive;
}

// The row of an EmployeeID that no employee has: there is no card to check, so the records are only counted.
LeftOut Unknown(CJetDB& database, const Overview& overview, const std::optional<std::int64_t>& id)
{
    const Punches punches = PunchReader(database, overview.period, overview.limits.firstWeekday).ReadOfNobody(database, id);
    LeftOut unknown{LeftOutReason::Unknown, id, {}};
    unknown.row.records = static_cast<std::int32_t>(
        std::count_if(punches.begin(), punches.end(), [&](const Punch& punch) { return LiesIn(overview.period, punch); }));
    return unknown;
}

bool HasRecords(const Found& found, std::int64_t id)
{
    return std::binary_search(found.begin(), found.end(), std::optional(id), Before);
}

// The employees who have records and are not in `known`. Adds all employees to `known`.
Employees Others(const Employees& all, const Found& found, Numbers& known)
{
    Employees others;
    for (const auto& employee : all) {
        const std::int32_t id = employee->EmployeeID();
        if (known.insert(id).second && HasRecords(found, id)) {
            others.push_back(employee);
        }
    }
    return others;
}

void Take(Overview& overview, LeftOut out)
{
    if (out.row.records > 0) {
        overview.leftOut.push_back(std::move(out));
    }
}

} // namespace

std::string_view LeftOutName(LeftOutReason reason)
{
    switch (reason) {
    case LeftOutReason::Inactive:
        return "inactive";
    case LeftOutReason::Administrator:
        return "administrator";
    case LeftOutReason::Unknown:
        break;
    }
    return "unknown";
}

bool LeftOut::IsOwed() const
{
    return !row.paid || row.check.changed;
}

LeftOutSearch FindLeftOut(const Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all, const Employees& listed)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    const Found found = WithRecords(*database, overview.period);
    Numbers known;
    std::for_each(listed.begin(), listed.end(), [&](const auto& employee) { known.insert(employee->EmployeeID()); });
    LeftOutSearch search{Others(AllOf(all), found, known), {}, 0};
    std::copy_if(found.begin(), found.end(), std::back_inserter(search.unknown),
                 [&](const auto& id) { return !id || !known.contains(*id); });
    return search;
}

void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, LeftOutSearch& search, const std::function<bool()>& goOn)
{
    const CJetDB::Hold hold(database);
    CardChecker checker(database, TermsOf(overview));
    const std::span<const std::shared_ptr<CEmployee>> known(search.known);
    const std::size_t first = search.done;
    for (bool more = !search.IsDone(); more; more = !search.IsDone() && goOn()) {
        const std::size_t at = search.done++;
        if (at >= known.size()) {
            Take(overview, Unknown(*database, overview, search.unknown[at - known.size()]));
            continue;
        }
        if ((at - first) % PunchReader::kAtOnce == 0) {
            checker.ReadAhead(NextEmployeeIDs(known, at));
        }
        Take(overview, {ReasonFor(*known[at]), known[at]->EmployeeID(), RowOf(overview, checker, known[at])});
    }
}

void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all, const Employees& listed)
{
    const CJetDB::Hold hold(database);
    LeftOutSearch search = FindLeftOut(overview, database, all, listed);
    if (!search.IsDone()) {
        ReadLeftOut(overview, database, search, [] { return true; });
    }
}

void TakeInLeftOut(Overview& overview, CEmployeeList& all)
{
    std::vector<LeftOut> unknown;
    for (LeftOut& out : overview.leftOut) {
        if (out.reason == LeftOutReason::Unknown) {
            unknown.push_back(std::move(out));
        } else {
            overview.rows.push_back(std::move(out.row));
        }
    }
    overview.leftOut = std::move(unknown);
    std::map<std::int32_t, std::size_t> places;
    for (const auto& employee : AllOf(all)) {
        places.emplace(employee->EmployeeID(), places.size());
    }
    const auto place = [&](const OverviewRow& row) { return places[row.employee->EmployeeID()]; };
    std::stable_sort(overview.rows.begin(), overview.rows.end(),
                     [&](const OverviewRow& left, const OverviewRow& right) { return place(left) < place(right); });
}

} // namespace ptk
