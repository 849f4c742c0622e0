#include "office/records/ChangeWatch.h"

#include "office/records/UndoStack.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr std::chrono::seconds kBetweenTries(10); // of a server that does not answer: each try takes a second of the window's time

// Whose record it was before or is after.
std::set<std::int64_t> EmployeesOf(const TrailEntry& entry)
{
    std::set<std::int64_t> employees;
    if (entry.employee) {
        employees.insert(*entry.employee);
    }
    for (const auto& row : {entry.before, entry.after}) {
        const TrailValue* employee = row ? ValueOf(*row, "EmployeeID") : nullptr;
        if (employee != nullptr && employee->kind == TrailValue::Kind::Number) {
            employees.insert(std::strtoll(employee->text.c_str(), nullptr, 10));
        }
    }
    return employees;
}

} // namespace

ChangeWatch::ChangeWatch(const std::shared_ptr<CJetDB>& database, const UndoStack& own) : m_database(database->Afresh()), m_own(own)
{
    m_database->DoNotWait();
    Look();
}

// What could not be asked now is asked the next time: no more than a notice depends on it.
void ChangeWatch::Look()
{
    if (!IsWorthTrying()) {
        return;
    }
    const auto look = [this] { m_newest ? TakeNew() : Start(); };
    if (!Succeeds(look) && IsTold()) {
        m_notBefore = std::chrono::steady_clock::now() + kBetweenTries;
    }
    m_database->CloseDB();
}

bool ChangeWatch::IsWorthTrying() const
{
    return std::chrono::steady_clock::now() >= m_notBefore;
}

bool ChangeWatch::IsTold() const
{
    return m_database->TellsNews();
}

bool ChangeWatch::IsAnyChanged(Shown what) const
{
    return std::any_of(m_changed.begin(), m_changed.end(), [&](const auto& changed) { return changed.first == what; });
}

// Listens before it looks, so that nothing falls between.
void ChangeWatch::Start()
{
    static_cast<void>(m_database->TakeNews());
    TrailQuery query;
    query.most = 1;
    const auto newest = ReadTrail(m_database, query);
    m_newest = newest.empty() ? 0 : newest.front().id;
}

void ChangeWatch::TakeNew()
{
    if (const auto first = m_database->TakeNews()) {
        // Where many write at once, an entry of a small number may come to be seen after one of a greater.
        const std::int64_t before = *first == 0 ? *m_newest : std::min(*m_newest, *first - 1);
        m_unreadAfter = std::min(m_unreadAfter.value_or(before), before);
    }
    if (!m_unreadAfter) {
        return;
    }
    TrailQuery query;
    query.newerThan = *m_unreadAfter;
    for (const TrailEntry& entry : ReadTrail(m_database, query)) {
        Take(entry);
    }
    m_unreadAfter.reset();
}

void ChangeWatch::Take(const TrailEntry& entry)
{
    m_newest = std::max(*m_newest, entry.id);
    if (entry.step && m_own.IsOwn(*entry.step)) {
        return;
    }
    if (entry.table == "TimeRecord") {
        for (const std::int64_t employee : EmployeesOf(entry)) {
            m_changed.emplace(Shown::CardRecords, employee);
        }
    } else if (entry.table == "Employee" && entry.row) {
        m_changed.emplace(Shown::Employee, *entry.row);
        m_changed.emplace(Shown::CardEmployee, *entry.row);
    } else if (entry.table == "Company" && entry.row) {
        m_changed.emplace(Shown::Company, *entry.row);
    }
}

void ChangeWatch::AboutToRead(Shown what)
{
    Look();
    std::erase_if(m_changed, [&](const auto& changed) { return changed.first == what; });
}

void ChangeWatch::AboutToRead(Shown what, std::int64_t row)
{
    Look();
    m_changed.erase({what, row});
}

} // namespace ptk
