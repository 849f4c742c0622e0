// Whether somebody else changed what is shown, asked of the edit trail from time to time.
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

// What a window shows of somebody or something, each read at a time of its own.
enum class Shown
{
    Employee,     // in the list of employees
    Company,      // in the list of companies
    CardEmployee, // name and rates of a time card's employee
    CardRecords   // the records on that employee's card
};

// Own changes do not count: those that the undo stack knows. Where thousands of rows changed between two looks, everything may have. What a
// look costs does not grow with the trail: one question, answered by two thousand short rows at most. No member raises.
class ChangeWatch
{
public:
    // Watches from now on. The undo stack outlives it. REQUIRES: database is not nullptr.
    ChangeWatch(const std::shared_ptr<CJetDB>& database, const UndoStack& own);

    // Asks for what is new, no more; nothing, and without waiting, while somebody else has the database. Own saves are to be remembered by
    // the undo stack before.
    void Look();

    // Whether looking costs next to nothing, since the database tells of changes by itself.
    [[nodiscard]] bool IsTold() const;

    // The newest entry of the trail as far as it looked, one's own included; nothing until the trail could be read.
    [[nodiscard]] std::optional<std::int64_t> Newest() const { return m_newest; }

    // As far as it looked: of anything or anybody.
    [[nodiscard]] bool IsAnyChanged(Shown what) const;

    // As far as it looked. `row` is the employee's or the company's number.
    [[nodiscard]] bool IsChanged(Shown what, std::int64_t row) const;

    // It is about to be read again: looks, and forgets what there was.
    void AboutToRead(Shown what);
    void AboutToRead(Shown what, std::int64_t row);

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
    bool m_unread = false;                             // it was told of news that could not be read yet
    std::chrono::steady_clock::time_point m_notBefore; // is it asked again: it could not be reached
    std::set<std::pair<Shown, std::int64_t>> m_changed;
    std::set<Shown> m_everything;                         // of this kind may have changed
    std::set<std::pair<Shown, std::int64_t>> m_readSince; // those of such kinds that did not any more
};

} // namespace ptk
