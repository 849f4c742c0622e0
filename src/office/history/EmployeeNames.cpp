#include "office/history/EmployeeNames.h"

#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <set>

namespace ptk {

namespace {

// In the order of the employee list; of any kind of value the text.
std::string NamesSql(const EngineWords& words)
{
    return "SELECT EmployeeID, COALESCE(CAST(FirstName AS TEXT), ''), COALESCE(CAST(LastName AS TEXT), '') FROM Employee ORDER BY " +
           ListOrder(words);
}

} // namespace

EmployeeNames::EmployeeNames(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    const auto rows = RequireSelect(*database, NamesSql(database->Words()));
    rows->ForEachRow([&] {
        m_order.push_back(rows->Int64At(0));
        m_present[m_order.back()] = {std::string(rows->TextAt(1)), std::string(rows->TextAt(2))};
    });
    m_former = m_present;
}

void EmployeeNames::Name::Take(const TrailRow& row)
{
    const TrailValue* newFirst = ValueOf(row, "FirstName");
    const TrailValue* newLast = ValueOf(row, "LastName");
    first = newFirst == nullptr ? first : newFirst->text;
    last = newLast == nullptr ? last : newLast->text;
}

std::string EmployeeNames::Of(std::int64_t employeeID) const
{
    const auto found = m_present.find(employeeID);
    return found == m_present.end() ? std::string() : found->second.Display();
}

std::optional<std::int64_t> EmployeeNames::FirstOf(std::string_view displayName) const
{
    const auto found = std::find_if(m_order.begin(), m_order.end(), [&](std::int64_t id) { return Of(id) == displayName; });
    return found == m_order.end() ? std::nullopt : std::optional(*found);
}

void EmployeeNames::Learn(const TrailEntry& entry)
{
    if (entry.table == "Employee" && entry.row && entry.before && !entry.after) {
        const auto [gone, isNew] = m_present.try_emplace(*entry.row);
        if (isNew) {
            gone->second.Take(*entry.before);
        }
    }
}

void EmployeeNames::LearnGone(const std::shared_ptr<CJetDB>& database)
{
    TrailQuery query;
    query.kind = TrailKind::Employees;
    query.action = "delete";
    ReadTrail(database, query, [this](const TrailEntry& entry) { Learn(entry); });
}

std::vector<std::int64_t> EmployeeNames::Gone() const
{
    const std::set<std::int64_t> present(m_order.begin(), m_order.end());
    std::vector<std::int64_t> gone;
    for (const auto& [id, name] : m_present) {
        if (!present.contains(id)) {
            gone.push_back(id);
        }
    }
    return gone;
}

std::string EmployeeNames::FormerOf(const TrailEntry& entry)
{
    Name& name = m_former[entry.row.value_or(0)];
    if (entry.before || entry.after) {
        name.Take(entry.before ? *entry.before : *entry.after);
    }
    return name.Display();
}

std::optional<std::int64_t> FindInHistory(const std::shared_ptr<CJetDB>& database, const std::string& name)
{
    const CJetDB::Hold hold(database);
    EmployeeNames names(database);
    if (const auto present = names.FirstOf(name)) {
        return present;
    }
    std::optional<std::int64_t> found;
    TrailQuery query;
    query.kind = TrailKind::Employees;
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        if (names.FormerOf(entry) == name && !found) {
            found = entry.row;
        }
    });
    return found;
}

} // namespace ptk
