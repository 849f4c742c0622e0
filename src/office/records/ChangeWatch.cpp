#include "office/records/ChangeWatch.h"

#include "office/records/UndoStack.h"
#include "platform/Succeeds.h"
#include "platform/Waiting.h"
#include "store/CJetDB.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr std::chrono::seconds kBetweenTries(10); // each try at a server that does not answer takes a second of the window's time

// Where many write at once, an entry may become visible after one with a greater number, so this many entries are read again. Nobody can
// make the watch read more by announcing an older entry.
constexpr std::int64_t kMargin = 500; // entries

constexpr std::int32_t kMost = 2'000; // entries at a time, read in some milliseconds

} // namespace

ChangeWatch::ChangeWatch(const std::shared_ptr<CJetDB>& database, const UndoStack& own) : m_database(database->SecondAccess()), m_own(own)
{
    m_database->DoNotWait();
    Look();
}

// What cannot be read now is read the next time, because only a notice depends on it.
void ChangeWatch::Look()
{
    if (!IsWorthTrying()) {
        return;
    }
    const auto look = [this] { m_newest ? TakeNew() : Start(); };
    if (!Succeeds(look) && AnnouncesChanges()) {
        m_notBefore = std::chrono::steady_clock::now() + kBetweenTries;
    }
    m_database->CloseDB();
}

bool ChangeWatch::IsWorthTrying() const
{
    return !waiting::IsTurn() && std::chrono::steady_clock::now() >= m_notBefore;
}

bool ChangeWatch::AnnouncesChanges() const
{
    return m_database->TellsNews();
}

bool ChangeWatch::IsAnyChanged(Watched what) const
{
    return m_everything.contains(what) ||
           std::any_of(m_changed.begin(), m_changed.end(), [&](const auto& changed) { return changed.first == what; });
}

bool ChangeWatch::IsChanged(Watched what, std::int64_t row) const
{
    return m_changed.contains({what, row}) || (m_everything.contains(what) && !m_readSince.contains({what, row}));
}

// Listens for news before it reads the trail, so that no change falls between the two.
void ChangeWatch::Start()
{
    static_cast<void>(m_database->TakeNews());
    std::int64_t newest = 0;
    for (const TrailNote& note : ReadTrailNotes(m_database, 0, AnnouncesChanges() ? kMargin : 1)) {
        m_seen.insert(note.id);
        newest = std::max(newest, note.id);
    }
    m_newest = newest;
}

// A file has one writer at a time, so its entries appear in the order of their numbers.
void ChangeWatch::TakeNew()
{
    const auto first = m_database->TakeNews();
    if (!first && !m_unread) {
        return;
    }
    m_unread = true;
    const std::int64_t known = AnnouncesChanges() ? *m_newest - kMargin : *m_newest;
    const auto notes = ReadTrailNotes(m_database, known, kMost);
    m_unread = false;
    if (notes.size() == kMost) {
        TakeEverything();
    }
    for (const TrailNote& note : notes) {
        Take(note);
    }
    m_seen.erase(m_seen.begin(), m_seen.upper_bound(*m_newest - kMargin));
}

// For so many changes that they are not looked through one by one.
void ChangeWatch::TakeEverything()
{
    m_everything = {Watched::Employee, Watched::Company, Watched::CardEmployee, Watched::CardRecords};
    m_readSince.clear();
}

void ChangeWatch::Take(const TrailNote& note)
{
    m_newest = std::max(*m_newest, note.id);
    if (!m_seen.insert(note.id).second || (note.step && m_own.IsOwn(*note.step))) {
        return;
    }
    if (note.table == "TimeRecord") {
        for (const auto& employee : {note.employeeBefore, note.employeeAfter}) {
            if (employee) {
                m_changed.emplace(Watched::CardRecords, *employee);
            }
        }
    } else if (note.table == "Employee" && note.row) {
        m_changed.emplace(Watched::Employee, *note.row);
        m_changed.emplace(Watched::CardEmployee, *note.row);
    } else if (note.table == "Company" && note.row) {
        m_changed.emplace(Watched::Company, *note.row);
    }
}

void ChangeWatch::AboutToRead(Watched what)
{
    Look();
    m_everything.erase(what);
    std::erase_if(m_changed, [&](const auto& changed) { return changed.first == what; });
}

void ChangeWatch::AboutToRead(Watched what, std::int64_t row)
{
    Look();
    m_changed.erase({what, row});
    if (m_everything.contains(what)) {
        m_readSince.insert({what, row});
    }
}

} // namespace ptk
