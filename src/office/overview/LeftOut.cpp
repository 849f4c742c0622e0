// Who has shifts in a period and is in no list: nobody owed is forgotten.
#include "model/CEmployeeList.h"
#include "model/check/PunchPlace.h"
#include "office/overview/OverviewRows.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/PunchSQL.h"

#include <algorithm>
#include <map>
#include <set>

namespace ptk {

namespace {

using Numbers = std::set<std::int64_t>;
using Found = std::vector<std::optional<std::int64_t>>; // EmployeeIDs in their order; none for records that name nobody

bool Before(const std::optional<std::int64_t>& left, const std::optional<std::int64_t>& right)
{
    return left && (!right || *left < *right);
}

// Whose records may lie in the period.
Found WithRecords(CJetDB& database, const PayPeriod& period)
{
    const auto rows = RequireSelect(database, punchsql::EmployeesWithRecords(database.Words()));
    static const DateTime firstOfAll(CalendarDate{100, 1, 1});
    rows->Bind("first", period.from > firstOfAll ? period.from.AddDays(-1) : period.from); // a shift of up to a day crosses its beginning
    rows->Bind("last", EndOfDay(period.to));
    Found found;
    rows->ForEachRow([&] { found.push_back(rows->KindAt(0) == CellKind::Number ? std::optional(rows->Int64At(0)) : std::nullopt); });
    std::sort(found.begin(), found.end(), Before);
    found.erase(std::unique(found.begin(), found.end()), found.end()); // numbers that are none are nobody's, like no number
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

// Nobody's card: the records are counted, and no more.
std::int32_t RecordsOf(CJetDB& database, const Overview& overview, const std::optional<std::int64_t>& id)
{
    const Punches punches = PunchReader(database, overview.period, overview.limits.firstWeekday).ReadOfNobody(database, id);
    return static_cast<std::int32_t>(
        std::count_if(punches.begin(), punches.end(), [&](const Punch& punch) { return LiesIn(overview.period, punch); }));
}

bool HasRecords(const Found& found, std::int64_t id)
{
    return std::binary_search(found.begin(), found.end(), std::optional(id), Before);
}

// Those who have records and are not known yet; knows everybody from then on.
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

std::string_view NameOf(LeftOutReason reason)
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

void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all, const Employees& listed)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    const Found found = WithRecords(*database, overview.period);
    Numbers known;
    std::for_each(listed.begin(), listed.end(), [&](const auto& employee) { known.insert(employee->EmployeeID()); });
    const Employees others = Others(AllOf(all), found, known);
    if (!others.empty()) {
        CardChecker checker(database, TermsOf(overview));
        for (const auto& employee : others) {
            Take(overview, {ReasonFor(*employee), employee->EmployeeID(), RowOf(overview, checker, employee)});
        }
    }
    for (const auto& id : found) {
        if (!id || !known.contains(*id)) {
            LeftOut unknown{LeftOutReason::Unknown, id, {}};
            unknown.row.records = RecordsOf(*database, overview, id);
            Take(overview, std::move(unknown));
        }
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
