#include "office/payday/PaydayAccount.h"

#include "model/CEmployeeList.h"
#include "model/check/PaidChanges.h"
#include "model/payday/ClosingReader.h"
#include "office/history/EmployeeNames.h"
#include "office/history/HistoryTable.h"
#include "office/overview/Overview.h"
#include "store/CJetDB.h"

#include <algorithm>

namespace ptk {

namespace {

// The figures of the cards now, in the order of the persons. Those who are no employees any more have none; they stand last.
std::vector<std::optional<CardFigures>> PresentFigures(const std::shared_ptr<CJetDB>& database, const PayPeriod& period, DateTime now,
                                                       const std::vector<PaydayPerson>& persons, const PaydayGoesOn& goesOn)
{
    Employees employees;
    for (const PaydayPerson& person : persons) {
        if (person.employee != nullptr) {
            employees.push_back(person.employee);
        }
    }
    Overview overview;
    overview.period = period;
    overview.made = now;
    overview.limits = LoadCheckLimits(database);
    ReadOverview(overview, database, employees, [&](const OverviewRow&) {
        AskWhetherToGoOn(goesOn, overview.rows.size(), 2 * employees.size());
        return true;
    });
    std::vector<std::optional<CardFigures>> figures;
    for (const OverviewRow& row : overview.rows) {
        figures.push_back(row.figures);
    }
    figures.resize(persons.size());
    return figures;
}

std::vector<AccountChange> ChangesSince(const std::shared_ptr<CJetDB>& database, const Closing& oldest, EmployeeNames& names)
{
    std::vector<AccountChange> changes;
    for (const TrailEntry& entry : ReadPaidChanges(database, oldest.employee, oldest.period, oldest.entry)) {
        changes.push_back({entry.id, InOneText(HistoryCellsOf(entry, [&](std::int64_t id) { return names.Of(id); }))});
    }
    return changes;
}

} // namespace

bool PaydayAccount::IsAnybodyChanged() const
{
    return std::any_of(persons.begin(), persons.end(), [](const AccountPerson& person) { return person.changed.has_value(); });
}

PaydayAccount ReadPaydayAccount(const std::shared_ptr<CJetDB>& database, const PayPeriod& period, DateTime now, const PaydayGoesOn& goesOn)
{
    const CJetDB::Hold hold(database);
    const auto employees = StoredEmployees(database);
    const Closings closings = ReadClosings(database, period);
    const auto persons = PersonsWithClosings(*employees, closings, true);
    const auto figures = PresentFigures(database, period, now, persons, goesOn);
    EmployeeNames names(database);
    PaydayAccount account{period, now, {}};
    for (std::size_t i = 0; i < persons.size(); ++i) {
        AccountPerson& person = account.persons.emplace_back(AccountPerson{persons[i], {}, figures[i], {}, {}});
        const auto closed = closings.find(persons[i].id);
        if (closed != closings.end() && closed->second.Newest() != nullptr) {
            person.paid = closed->second.ofPeriod;
            person.changed = DifferenceOf(person.paid.back(), person.now);
            person.changes = ChangesSince(database, person.paid.front(), names);
        }
        AskWhetherToGoOn(goesOn, persons.size() + i, 2 * persons.size());
    }
    return account;
}

} // namespace ptk
