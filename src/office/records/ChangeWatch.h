// Tells whether somebody else changed what is shown, by asking the edit trail from time to time.
#pragma once

#include "store/trail/TrailReader.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace ptk {

class CJetDB;
class UndoStack;

// The kinds of things that a window shows. Each is read at a time of its own.
enum class Watched
{
    Employee,     // in the list of employees
    Company,      // in the list of companies
    CardEmployee, // name and rates of a time card's employee
    CardRecords   // the records on that employee's card
};

// Finds out which of the shown records somebody else changed. Changes that the undo stack knows are one's own and do not count. If
// thousands of rows changed between two looks, everything counts as changed. The cost of a look does not grow with the trail: it is one
// question, answered by two thousand short rows at most. No member raises.
class ChangeWatch
{
public:
    // Watches from now on. REQUIRES: database is not nullptr; the undo stack outlives the watch.
    ChangeWatch(const std::shared_ptr<CJetDB>& database, const UndoStack& own);

    // Reads what is new in the trail; nothing, and without waiting, while somebody else has the database. REQUIRES: the undo stack knows
    // own saves.
    void Look();

    // Whether a look costs next to nothing because the database announces changes by itself.
    [[nodiscard]] bool AnnouncesChanges() const;

    // The newest entry of the trail at the last look, one's own included; nothing until the trail could be read.
    [[nodiscard]] std::optional<std::int64_t> Newest() const { return m_newest; }

    // Whether anything of this kind was changed, as of the last look.
    [[nodiscard]] bool IsAnyChanged(Watched what) const;

    // Whether this one was changed, as of the last look. `row` is the EmployeeID or the CompanyID.
    [[nodiscard]] bool IsChanged(Watched what, std::int64_t row) const;

    // To be called before something is read again, everything of its kind or one row: looks, and forgets the changes so far.
    void AboutToRead(Watched what);
    void AboutToRead(Watched what, std::int64_t row);

private:
    void Start();
    void TakeNew();
    void Take(const TrailNote& note);
    void TakeEverything();
    [[nodiscard]] bool IsWorthTrying() const;

    std::shared_ptr<CJetDB> m_database; // an access of its own, which waits for nobody
    const UndoStack& m_own;
    std::optional<std::int64_t> m_newest;              // entry that was looked at; nothing until the trail could be read
    std::set<std::int64_t> m_seen;                     // the entries that were looked at, as far back as others may still come
    bool m_unread = false;                             // news was announced that could not be read yet
    std::chrono::steady_clock::time_point m_notBefore; // no look before this moment: the server did not answer
    std::set<std::pair<Watched, std::int64_t>> m_changed;
    std::set<Watched> m_everything;                         // kinds of which everything may have changed
    std::set<std::pair<Watched, std::int64_t>> m_readSince; // of those kinds: what was read again since
};

} // namespace ptk
