#include "office/records/UndoStack.h"

#include "office/history/HistoryText.h"
#include "platform/Succeeds.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/DisplayNameSQL.h"
#include "store/engine/Engine.h"
#include "store/engine/Statement.h"

#include <algorithm>
#include <fmt/format.h>
#include <string_view>

namespace ptk {

namespace {

constexpr auto kUndo = "Undo";
constexpr auto kRedo = "Redo";
constexpr auto kImportEmployees = "Import of {} Employees";
constexpr auto kClosePayday = "Close Payday";
constexpr auto kReopenPayday = "Reopen Payday";

bool IsUndoable(const TrailEntry& entry)
{
    const bool table = entry.table == "TimeRecord" || entry.table == "Employee" || entry.table == "Company" || entry.table == "_Payday";
    return table && entry.row && (entry.before || entry.after);
}

// Adds a full stop if there is none: a server sometimes answers whole sentences.
std::string Sentence(std::string text)
{
    if (text.empty() || std::string_view(".?!").find(text.back()) == std::string_view::npos) {
        text += '.';
    }
    return text;
}

TrailValue* PasswordIn(std::optional<TrailRow>& row)
{
    const auto isPassword = [](const TrailValue& value) { return value.column == "Password" && value.kind == TrailValue::Kind::Text; };
    if (!row) {
        return nullptr;
    }
    const auto found = std::find_if(row->begin(), row->end(), isPassword);
    return found == row->end() ? nullptr : &*found;
}

const char* VerbOf(const TrailEntry& entry)
{
    if (!entry.before) {
        return "New ";
    }
    return entry.after ? "Change " : "Delete ";
}

bool AreNewRecords(const std::vector<TrailEntry>& entries)
{
    return std::all_of(entries.begin(), entries.end(),
                       [](const TrailEntry& entry) { return entry.table == "TimeRecord" && !entry.before; });
}

// Whether these are an import: no other action stores several employees at once.
bool AreEmployees(const std::vector<TrailEntry>& entries)
{
    return std::all_of(entries.begin(), entries.end(), [](const TrailEntry& entry) { return entry.table == "Employee"; });
}

// " 03/01/2003 - 03/15/2003"
std::string PaydayDays(const TrailEntry& entry)
{
    std::string days;
    for (const char* column : {"FromDay", "ToDay"}) {
        const auto& row = entry.after ? entry.after : entry.before;
        const TrailValue* value = ValueOf(*row, column);
        const auto day = value == nullptr ? std::nullopt : ParseDateTime(value->text);
        days += day ? (days.empty() ? " " : " - ") + DayText(*day) : "";
    }
    return days;
}

const char* NameSql(const std::string& table)
{
    if (table == "TimeRecord") {
        return "StartTime";
    }
    return table == "Company" ? "Name" : kDisplayNameSql;
}

std::string Titled(const char* word, const std::string& text)
{
    return text.empty() ? word : std::string(word) + ' ' + text;
}

} // namespace

UndoStack::UndoStack(std::shared_ptr<CJetDB> database) : m_database(std::move(database)) {}

std::string UndoStack::UndoText() const
{
    return Titled(kUndo, m_done.empty() ? std::string() : m_done.back().told.text);
}

std::string UndoStack::RedoText() const
{
    return Titled(kRedo, m_undone.empty() ? std::string() : m_undone.back().told.text);
}

bool UndoStack::Remember()
{
    return OrRefusal([&] {
        const std::int64_t step = m_database->LastStep();
        if (step == 0 || m_ours.contains(step)) {
            return true;
        }
        TrailQuery query;
        query.step = step;
        query.newerThan = step - 1; // a step has the number of its first entry
        return Succeeds(
            [&] { Take(ReadTrail(m_database, query)); },
            [&](const Failure& failure) { m_refusal = Sentence("What was stored cannot be undone: " + failure.Description()); });
    });
}

// Runs `work`; its failure becomes the refusal. A long sentence may find no memory, where the failure's own "Out of memory." needs none.
template <typename Work>
bool UndoStack::OrRefusal(Work work)
{
    m_refusal.clear();
    return Succeeds(work, [&](const Failure& failure) { m_refusal = Sentence(failure.Description()); });
}

void UndoStack::Take(const std::vector<TrailEntry>& entries)
{
    if (entries.empty()) {
        return;
    }
    m_ours.insert(m_database->LastStep());
    if (std::all_of(entries.begin(), entries.end(), IsUndoable)) {
        m_done.push_back(StepOf(entries));
        m_undone.clear();
    }
}

// The trail answers the newest entry first, so the first change of the step is the last entry.
UndoStack::Step UndoStack::StepOf(const std::vector<TrailEntry>& entries) const
{
    Step step;
    const TrailEntry& first = entries.back();
    step.told = {TextOf(entries), first.table, *first.row, first.employee};
    step.lastEntry = entries.front().id;
    std::for_each(entries.rbegin(), entries.rend(), [&](const TrailEntry& entry) {
        RowChange& change = step.changes.emplace_back(RowChange{entry.table, *entry.row, entry.before, entry.after});
        step.complete = PutPasswords(entry, change) && step.complete;
    });
    return step;
}

// Puts the passwords, which the trail does not hold, into the change. False if one is not known here.
bool UndoStack::PutPasswords(const TrailEntry& entry, RowChange& change) const
{
    TrailValue* before = PasswordIn(change.before);
    TrailValue* after = PasswordIn(change.after);
    if (before == nullptr && after == nullptr) {
        return true;
    }
    const auto& known = m_database->Passwords();
    const auto found = std::find_if(known.begin(), known.end(), [&](const PasswordChange& password) {
        return password.step == entry.step.value_or(0) && (password.employeeID == 0 || password.employeeID == entry.row);
    });
    if (found == known.end()) {
        return false;
    }
    if (before != nullptr) {
        before->text = found->before;
    }
    if (after != nullptr) {
        after->text = found->after;
    }
    return true;
}

std::string UndoStack::TextOf(const std::vector<TrailEntry>& entries) const
{
    if (entries.front().table == "_Payday") {
        return (entries.front().after ? kClosePayday : kReopenPayday) + PaydayDays(entries.front());
    }
    if (entries.size() == 1) {
        return VerbOf(entries.front()) + RowName(entries.front());
    }
    if (AreEmployees(entries)) {
        return fmt::format(kImportEmployees, entries.size());
    }
    return AreNewRecords(entries) ? fmt::format("Auto Fill of {} records", entries.size()) : fmt::format("{} changes", entries.size());
}

// The name is read from the row, because an entry holds only the columns that changed.
std::string UndoStack::RowName(const TrailEntry& entry) const
{
    if (!entry.after && entry.table == "TimeRecord") {
        return RecordMoment(entry);
    }
    const CJetDB::Hold hold(m_database);
    RequireOpen(*m_database);
    const auto search = RequireSelect(*m_database, fmt::format("SELECT COALESCE(CAST({} AS TEXT), '') FROM {} WHERE {}ID = {}",
                                                               NameSql(entry.table), entry.table, entry.table, *entry.row));
    std::string text;
    search->ForEachRow([&] { text = search->TextAt(0); });
    if (text.empty()) {
        return fmt::format("{} {}", entry.table, *entry.row);
    }
    const auto moment = entry.table == "TimeRecord" ? ParseDateTime(text) : std::nullopt;
    return moment ? MomentText(*moment) : text;
}

bool UndoStack::Undo()
{
    return OrRefusal([&] { return Move(m_done, m_undone, "undone"); });
}

bool UndoStack::Redo()
{
    return OrRefusal([&] { return Move(m_undone, m_done, "done again"); });
}

// Undo and redo alike carry out the inverse of the step's changes; that inverse is then the step on the other stack. All memory for the
// stacks is allocated before the step is stored, so that nothing can fail afterwards.
bool UndoStack::Move(std::vector<Step>& from, std::vector<Step>& to, const char* word)
{
    if (from.empty()) {
        return false;
    }
    Step step = from.back();
    MovedStep moved = step.told;
    std::set<std::int64_t> ours{0};
    to.reserve(to.size() + 1);
    if (!step.complete) {
        m_refusal = fmt::format("\"{}\" was not {}: the former password is not known.", step.told.text, word);
        return false;
    }
    step.changes = Inverse(step.changes);
    const bool done = m_database->ExecuteSteps([&](Engine& engine) { Apply(engine, step.changes, {step.lastEntry, m_ours}); });
    if (!done) {
        m_refusal = m_database->Conflict()
                        ? fmt::format("\"{}\" was not {}: somebody else changed or uses what it is about.", step.told.text, word)
                        : Sentence(fmt::format("\"{}\" was not {}: {}", step.told.text, word, m_database->LastFailure().Description()));
        return false;
    }
    step.lastEntry = m_database->NewestEntry();
    auto own = ours.extract(ours.begin());
    own.value() = m_database->LastStep();
    m_ours.insert(std::move(own));
    m_moved = std::move(moved);
    from.pop_back();
    to.push_back(std::move(step));
    return true;
}

} // namespace ptk
