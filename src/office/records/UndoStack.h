// Taking back, step by step, what was stored since login.
#pragma once

#include "store/trail/RowChange.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

// What an undo or a redo did.
struct MovedStep
{
    std::string text;                     // "Delete 03/05/2003 08:00 AM"
    std::string table;                    // of its first row: TimeRecord, Employee, Company or _Payday
    std::int64_t row = 0;                 // that row
    std::optional<std::int64_t> employee; // whose row or record it is
};

// Of time records, employees, companies and paydays: one step is what one action stored, an auto fill as a whole. It reads what was done
// from the edit trail, which an undo and a redo write on; passwords, which are not there, it remembers. No member raises.
//
// After every save, of whatever kind, Remember is to be called, before anything else is stored. After Undo and Redo the lists and cards are
// to be read again.
class UndoStack
{
public:
    // Not nullptr; the one that everything is stored by, or one made Afresh of it.
    explicit UndoStack(std::shared_ptr<CJetDB> database);

    // Takes in the step that was stored last; nothing where nothing changed, where it is known already, or where it is no such change. What
    // could be redone then cannot be any more. False when the trail could not be read: see Refusal.
    bool Remember();

    // "Undo Delete 03/05/2003 08:00 AM"; "Undo" when there is nothing.
    [[nodiscard]] std::string UndoText() const;

    [[nodiscard]] std::string RedoText() const;

    // What these two would do; nullptr when there is nothing.
    [[nodiscard]] const MovedStep* NextUndo() const { return m_done.empty() ? nullptr : &m_done.back().told; }
    [[nodiscard]] const MovedStep* NextRedo() const { return m_undone.empty() ? nullptr : &m_undone.back().told; }

    // False, with a Refusal, when somebody else changed one of the rows meanwhile or the database failed: nothing is changed then, and the
    // step stays the next to be undone. False without one when there is nothing to undo.
    bool Undo();
    bool Redo();

    // By the last of them that answered true.
    [[nodiscard]] const MovedStep& Moved() const { return m_moved; }

    // A number of the trail, as far as Remember was told.
    [[nodiscard]] bool IsOwn(std::int64_t step) const { return m_ours.contains(step); }

    // Why the last call answered false: one sentence for people; empty when it did not.
    [[nodiscard]] const std::string& Refusal() const { return m_refusal; }

private:
    struct Step
    {
        MovedStep told;
        std::vector<RowChange> changes;
        std::int64_t lastEntry = 0; // of the trail when it was done
        bool complete = true;       // false where a password is not known
    };

    void Take(const std::vector<TrailEntry>& entries);
    [[nodiscard]] Step StepOf(const std::vector<TrailEntry>& entries) const;
    [[nodiscard]] std::string TextOf(const std::vector<TrailEntry>& entries) const;
    [[nodiscard]] std::string NameOf(const TrailEntry& entry) const;
    [[nodiscard]] bool PutPasswords(const TrailEntry& entry, RowChange& change) const;
    template <typename Work>
    bool OrRefusal(Work work);
    bool Move(std::vector<Step>& from, std::vector<Step>& to, const char* word);

    std::shared_ptr<CJetDB> m_database;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
    MovedStep m_moved;
    std::set<std::int64_t> m_ours; // every step of the trail that was made here
    std::string m_refusal;
};

} // namespace ptk
