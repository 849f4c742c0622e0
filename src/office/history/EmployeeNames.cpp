#include "office/history/EmployeeNames.h"

#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <set>

namespace ptk {

namespace {

// Reads each name as text, whatever its type, in the order of the employee list.
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
        Name& name = m_known[m_order.back()];
        name.first = rows->TextAt(1);
        name.last = rows->TextAt(2);
        name.Show();
    });
}

void EmployeeNames::Name::Show()
{
    display = first.empty() ? last : first + " " + last;
}

void EmployeeNames::Name::Take(const TrailRow& row)
{
    const TrailValue* newFirst = ValueOf(row, "FirstName");
    const TrailValue* newLast = ValueOf(row, "LastName");
    first = newFirst == nullptr ? first : newFirst->text;
    last = newLast == nullptr ? last : newLast->text;
    Show();
}

const std::string& EmployeeNames::Of(std::int64_t employeeID) const
{
    static const std::string unknown;
    const auto found = m_known.find(employeeID);
    return found == m_known.end() ? unknown : found->second.display;
}

std::optional<std::int64_t> EmployeeNames::FirstOf(std::string_view displayName) const
{
    const auto found = std::find_if(m_order.begin(), m_order.end(), [&](std::int64_t id) { return Of(id) == displayName; });
    return found == m_order.end() ? std::nullopt : std::optional(*found);
}

void EmployeeNames::Learn(const TrailEntry& entry)
{
    if (entry.table == "Employee" && entry.row && entry.before && !entry.after) {
        const auto [gone, isNew] = m_known.try_emplace(*entry.row);
        if (isNew) {
            gone->second.Take(*entry.before);
        }
    }
}

void EmployeeNames::LearnGone(const std::shared_ptr<CJetDB>& database)
{
    TrailQuery query;
    query.kind = TrailKind::People;
    query.action = "delete";
    ReadTrail(database, query, [this](const TrailEntry& entry) { Learn(entry); });
}

std::vector<std::int64_t> EmployeeNames::Gone() const
{
    const std::set<std::int64_t> present(m_order.begin(), m_order.end());
    std::vector<std::int64_t> gone;
    for (const auto& [id, name] : m_known) {
        if (!present.contains(id)) {
            gone.push_back(id);
        }
    }
    std::sort(gone.begin(), gone.end());
    return gone;
}

std::string EmployeeNames::FormerOf(const TrailEntry& entry)
{
    const std::int64_t id = entry.row.value_or(0);
    const auto [place, isNew] = m_former.try_emplace(id);
    Name& name = place->second;
    if (isNew && m_known.contains(id)) {
        name = m_known.at(id);
    }
    if (entry.before || entry.after) {
        name.Take(entry.before ? *entry.before : *entry.after);
    }
    return name.display;
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
    query.kind = TrailKind::People;
    ReadTrail(database, query, [&](const TrailEntry& entry) {
        if (names.FormerOf(entry) == name && !found) {
            found = entry.row;
        }
    });
    return found;
}

} // namespace ptk
