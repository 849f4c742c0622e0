#include "model/check/PaidChanges.h"

#include "model/check/PunchPlace.h"
#include "model/check/WorkWeeks.h"
#include "platform/text/Joined.h"
#include "store/CJetDB.h"
#include "store/engine/Statement.h"
#include "store/engine/StoredDate.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <set>
#include <string>

namespace ptk {

namespace {

constexpr const char* kPresent = "SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE TimeRecordID IN ({})";
constexpr const char* kColumns[] = {"EmployeeID", "StartTime", "EndTime"}; // the columns of kPresent after the key
constexpr const char* kPaidBy[] = {"PayRate", "OvertimePayRate", "AutoDeduct", "AutoDeductLunchLength", "AutoDeductBreakLength"};

using States = std::map<std::int64_t, std::optional<TrailRow>>; // the rows of records by their keys; none: the record does not exist

bool IsOfPay(const TrailEntry& entry)
{
    return entry.before && entry.after && std::any_of(std::begin(kPaidBy), std::end(kPaidBy), [&](const char* column) {
               return ValueOf(*entry.after, column) != nullptr;
           });
}

TrailValue PresentValue(const Statement& row, int column)
{
    using StoredKind = TrailValue::Kind;
    const std::string name = kColumns[column - 1];
    switch (row.KindAt(column)) {
    case CellKind::Null:
        return {name, StoredKind::Null, {}};
    case CellKind::Number:
        return {name, StoredKind::Number, std::string(row.TextAt(column))};
    case CellKind::Text:
        return {name, StoredKind::Text, std::string(row.TextAt(column))};
    default:
        return {name, StoredKind::Bytes, {}};
    }
}

States PresentStates(CJetDB& database, const std::vector<std::int64_t>& records)
{
    States states;
    const auto rows = RequireSelect(database, fmt::format(kPresent, Joined(records, ",")));
    rows->ForEachRow([&] { states[rows->Int64At(0)] = TrailRow{PresentValue(*rows, 1), PresentValue(*rows, 2), PresentValue(*rows, 3)}; });
    return states;
}

// The row as it was before an entry. An entry of a change holds only the columns that changed: the others are those of `after`.
std::optional<TrailRow> StateBefore(const TrailEntry& entry, const std::optional<TrailRow>& after)
{
    if (!entry.before || !entry.after) {
        return entry.before;
    }
    TrailRow row = after.value_or(TrailRow());
    for (const TrailValue& was : *entry.before) {
        const auto same = std::find_if(row.begin(), row.end(), [&](const TrailValue& value) { return value.column == was.column; });
        if (same != row.end()) {
            *same = was;
        } else {
            row.push_back(was);
        }
    }
    return row;
}

std::optional<DateTime> MomentIn(const TrailRow& row, const char* column)
{
    const TrailValue* value = ValueOf(row, column);
    return value != nullptr && value->kind == TrailValue::Kind::Text ? FromStoredText(value->text) : std::nullopt;
}

// The card of one employee and period: tells which rows of the trail lie in it.
class Card
{
public:
    Card(std::int64_t employee, const PayPeriod& period) : m_employee(std::to_string(employee)), m_period(period) {}

    bool Holds(const std::optional<TrailRow>& row) const
    {
        const TrailValue* employee = row ? ValueOf(*row, "EmployeeID") : nullptr;
        return employee != nullptr && employee->text == m_employee && LiesIn(m_period, PunchOf(*row));
    }

private:
    Punch PunchOf(const TrailRow& row) const
    {
        Punch punch;
        punch.start = MomentIn(row, "StartTime");
        punch.end = MomentIn(row, "EndTime");
        punch.fetched = IsFetched(row, punch);
        return punch;
    }

    // Whether the card's fetch would take the row. It compares the stored values, even those that cannot be read as times.
    bool IsFetched(const TrailRow& row, const Punch& punch) const
    {
        using StoredKind = TrailValue::Kind;
        const DateTime end = MidnightAfter(m_period.to);
        if (punch.start && punch.end) {
            return *punch.start >= m_period.from && *punch.end <= end;
        }
        const TrailValue* from = ValueOf(row, "StartTime");
        const TrailValue* to = ValueOf(row, "EndTime");
        return from != nullptr && to != nullptr &&
               (from->kind == StoredKind::Bytes || (from->kind == StoredKind::Text && from->text >= StoredText(m_period.from))) &&
               (to->kind == StoredKind::Number || (to->kind == StoredKind::Text && to->text <= StoredText(end)));
    }

    std::string m_employee;
    PayPeriod m_period;
};

// The entries that touch the card, found by walking back from the present rows. REQUIRES: all entries of these records, newest first.
std::set<std::int64_t> TouchingEntries(const std::vector<TrailEntry>& entries, States states, const Card& card)
{
    std::set<std::int64_t> touching;
    for (const TrailEntry& entry : entries) {
        std::optional<TrailRow>& state = states[entry.row.value_or(0)];
        const std::optional<TrailRow> after = entry.after && !entry.before ? entry.after : (entry.after ? state : std::nullopt);
        state = StateBefore(entry, after);
        if (card.Holds(after) || card.Holds(state)) {
            touching.insert(entry.id);
        }
    }
    return touching;
}

} // namespace

std::vector<std::int64_t> RecordsOf(const std::vector<TrailEntry>& entries)
{
    std::set<std::int64_t> records;
    for (const TrailEntry& entry : entries) {
        if (entry.table == "TimeRecord" && entry.row) {
            records.insert(*entry.row);
        }
    }
    return {records.begin(), records.end()};
}

std::vector<TrailEntry> ReadPaidChanges(const std::shared_ptr<CJetDB>& database, std::int64_t employee, const PayPeriod& period,
                                        std::int64_t newerThan)
{
    const CJetDB::Hold hold(database);
    TrailQuery ofEmployee;
    ofEmployee.employee = employee;
    ofEmployee.newerThan = newerThan;
    std::vector<TrailEntry> found = ReadTrail(database, ofEmployee);
    TrailQuery ofRecords;
    ofRecords.records = RecordsOf(found);
    ofRecords.newerThan = newerThan; // entries, too, of the time when a record was somebody else's
    std::erase_if(found, [](const TrailEntry& entry) { return entry.table != "Employee" || !IsOfPay(entry); });
    if (ofRecords.records->empty()) {
        return found;
    }
    std::vector<TrailEntry> entries = ReadTrail(database, ofRecords);
    const auto touching = TouchingEntries(entries, PresentStates(*database, *ofRecords.records), Card(employee, period));
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(found),
                 [&](const TrailEntry& entry) { return touching.contains(entry.id); });
    std::sort(found.begin(), found.end(), [](const TrailEntry& left, const TrailEntry& right) { return left.id > right.id; });
    return found;
}

} // namespace ptk
