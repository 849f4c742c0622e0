#include "store/trail/TrailReader.h"

#include "store/CJetDB.h"
#include "store/engine/EngineWords.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/trail/TrailJson.h"
#include "store/trail/TrailSQL.h"

#include <fmt/format.h>

#include <algorithm>

namespace ptk {

namespace {

// Goes from one person to the next by their index, however many entries each has.
constexpr const char* kPersons = "WITH RECURSIVE Person (name) AS (SELECT MIN(ChangedBy) FROM _Change WHERE ChangedBy > '' UNION ALL "
                                 "SELECT (SELECT MIN(ChangedBy) FROM _Change WHERE ChangedBy > name) FROM Person WHERE name IS NOT NULL) "
                                 "SELECT CAST(name AS TEXT) FROM Person WHERE name IS NOT NULL";

constexpr const char* kReasons =
    "SELECT CAST(Reason AS TEXT) FROM (SELECT Reason, ChangeID FROM _Change ORDER BY ChangeID DESC LIMIT 5000) AS "
    "Newest WHERE Reason <> '' GROUP BY Reason ORDER BY MAX(ChangeID) DESC LIMIT ";

constexpr const char* kNotes =
    "SELECT ChangeID, Step, TableName, RowID, EmployeeBefore, EmployeeAfter FROM _Change WHERE ChangeID > :newer "
    "ORDER BY ChangeID DESC LIMIT ";

constexpr std::int32_t kPortion = 10'000; // entries, some megabytes

// Reads a text, empty for a null. The memory of `text` is used again, as that of all that an entry holds.
void ReadText(const Statement& row, int column, std::string& text)
{
    text.clear();
    if (row.KindAt(column) != CellKind::Null) {
        text = row.TextAt(column);
    }
}

std::optional<std::int64_t> NumberOf(const Statement& row, int column)
{
    return row.KindAt(column) == CellKind::Number ? std::optional(row.Int64At(column)) : std::nullopt;
}

void ReadSide(const Statement& row, int column, std::optional<TrailRow>& side)
{
    if (row.KindAt(column) != CellKind::Text) {
        return side.reset();
    }
    if (!side) {
        side.emplace();
    }
    if (!ParseTrailRow(row.TextAt(column), *side)) {
        side.reset();
    }
}

bool HasReasons(CJetDB& database)
{
    const std::string find = database.Words().findReasons;
    return find.empty() || RequireSelect(database, find)->ReadRows()->RecordCount() != 0;
}

void ReadEntry(const Statement& row, TrailEntry& entry)
{
    using namespace trailsql;
    entry.id = row.Int64At(kId);
    ReadText(row, kAt, entry.at);
    ReadText(row, kBy, entry.by);
    ReadText(row, kProgram, entry.program);
    entry.step = NumberOf(row, kStep);
    ReadText(row, kTable, entry.table);
    entry.row = NumberOf(row, kRow);
    ReadText(row, kAction, entry.action);
    ReadSide(row, kBefore, entry.before);
    ReadSide(row, kAfter, entry.after);
    entry.employee = NumberOf(row, kEmployee);
    ReadText(row, kReason, entry.reason);
}

TrailNote NoteOf(const Statement& row)
{
    TrailNote note{row.Int64At(0), NumberOf(row, 1), {}, NumberOf(row, 3), NumberOf(row, 4), NumberOf(row, 5)};
    ReadText(row, 2, note.table);
    return note;
}

// Reads a portion, answers how many entries it had, and leaves the query at what is older than the last of them.
std::int32_t ReadPortion(CJetDB& database, TrailQuery& query, const std::function<void(const TrailEntry&)>& take)
{
    const auto entries = RequireSelect(database, TrailSql(query, database.Words(), HasReasons(database)));
    BindTrail(*entries, query);
    std::int32_t count = 0;
    TrailEntry entry;
    entries->ForEachRow([&] {
        ReadEntry(*entries, entry);
        query.olderThan = entry.id;
        ++count;
        take(entry);
    });
    return count;
}

} // namespace

const TrailValue* ValueOf(const TrailRow& row, std::string_view column)
{
    const auto found = std::find_if(row.begin(), row.end(), [&](const TrailValue& value) { return value.column == column; });
    return found == row.end() ? nullptr : &*found;
}

void ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query, const std::function<void(const TrailEntry&)>& take)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    if (!database->HasTrail()) {
        return;
    }
    TrailQuery portion = query;
    std::int32_t left = query.most;
    std::int32_t read = 0;
    do {
        portion.most = std::min(left, kPortion);
        read = ReadPortion(*database, portion, take);
        left -= read;
    } while (read == portion.most && left > 0);
}

std::vector<TrailEntry> ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query)
{
    std::vector<TrailEntry> entries;
    ReadTrail(database, query, [&](const TrailEntry& entry) { entries.push_back(entry); });
    return entries;
}

std::vector<TrailNote> ReadTrailNotes(const std::shared_ptr<CJetDB>& database, std::int64_t newerThan, std::int32_t most)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<TrailNote> notes;
    if (database->HasTrail()) {
        const auto rows = RequireSelect(*database, fmt::format("{}{}", kNotes, most));
        rows->Bind("newer", std::to_string(newerThan));
        rows->ForEachRow([&] { notes.push_back(NoteOf(*rows)); });
    }
    return notes;
}

std::vector<std::string> ReadTrailPersons(const std::shared_ptr<CJetDB>& database)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<std::string> persons;
    if (database->HasTrail()) {
        const auto names = RequireSelect(*database, kPersons);
        names->ForEachRow([&] { persons.emplace_back(names->TextAt(0)); });
    }
    return persons;
}

std::vector<std::string> ReadTrailReasons(const std::shared_ptr<CJetDB>& database, std::int32_t most)
{
    const CJetDB::Hold hold(database);
    RequireOpen(*database);
    std::vector<std::string> reasons;
    if (database->HasTrail() && HasReasons(*database)) {
        const auto rows = RequireSelect(*database, kReasons + std::to_string(most));
        rows->ForEachRow([&] { reasons.emplace_back(rows->TextAt(0)); });
    }
    return reasons;
}

} // namespace ptk
