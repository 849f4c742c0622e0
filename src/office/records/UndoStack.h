// Undo and redo, step by step, of what was stored since login.
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
    std::int64_t row = 0;                 // key of its first row
    std::optional<std::int64_t> employee; // whose row or record it is
};

// Undoes and redoes changes of time records, employees, companies and paydays. One step is what one action stored, for example a whole auto
// fill. The changes are read from the edit trail, to which undo and redo add entries. Passwords are not in the trail; the database's access
// remembers them. No member raises.
//
// After every save, of whatever kind, call Remember before anything else is stored. After Undo and Redo read the lists and cards again.
class UndoStack
{
public:
    // REQUIRES: not nullptr; the access to the database that stores everything, or one made of it by SecondAccess.
    explicit UndoStack(std::shared_ptr<CJetDB> database);

    // Adds the step that was stored last, after which nothing can be redone any more. Adds nothing if nothing changed, if the step is known
    // already, or if it cannot be undone. False if the trail could not be read: see Refusal.
    bool Remember();

    // The caption "Undo Delete 03/05/2003 08:00 AM"; "Undo" if there is nothing to undo.
    [[nodiscard]] std::string UndoText() const;

    [[nodiscard]] std::string RedoText() const;

    // The steps that Undo and Redo would move; nullptr if there is none.
    [[nodiscard]] const MovedStep* NextUndo() const { return m_done.empty() ? nullptr : &m_done.back().told; }
    [[nodiscard]] const MovedStep* NextRedo() const { return m_undone.empty() ? nullptr : &m_undone.back().told; }

    // Undoes the last step, or redoes the step undone last. False, with a Refusal, if somebody else changed one of the rows meanwhile or
    // the database failed: then nothing is changed, and the step stays the next one. False without a Refusal if there is no step.
    bool Undo();
    bool Redo();

    // The step that the last successful Undo or Redo moved.
    [[nodiscard]] const MovedStep& Moved() const { return m_moved; }

    // Whether this step of the trail was made here, as far as Remember was called.
    [[nodiscard]] bool IsOwn(std::int64_t step) const { return m_ours.contains(step); }

    // Why the last call failed: one sentence for people; empty if it did not fail.
    [[nodiscard]] const std::string& Refusal() const { return m_refusal; }

private:
    struct Step
    {
        MovedStep told;
        std::vector<RowChange> changes;
        std::int64_t lastEntry = 0; // newest entry of the trail when the step was done
        bool complete = true;       // false where a password is not known
    };

    void Take(const std::vector<TrailEntry>& entries);
    [[nodiscard]] Step StepOf(const std::vector<TrailEntry>& entries) const;
    [[nodiscard]] std::string TextOf(const std::vector<TrailEntry>& entries) const;
    [[nodiscard]] std::string RowName(const TrailEntry& entry) const;
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
