#include "store/sqlite/EditTrail.h"

#include "platform/Failure.h"
#include "platform/text/DataText.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Schema.h"
#include "store/sqlite/TrailTriggers.h"

#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kFindTrail = "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name IN ('_Session', '_Change')"; // 2: both
constexpr const char* kFindStructure = "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name = '_Structure'";
constexpr const char* kStructure = "SELECT COALESCE(MAX(version), 0) FROM _Structure";
constexpr const char* kNext = "SELECT IFNULL((SELECT seq FROM sqlite_sequence WHERE name = '_Change'), 0) + 1";
constexpr const char* kClear = "DELETE FROM _Session; INSERT INTO _Session DEFAULT VALUES";
constexpr const char* kTables[] = {"TimeRecord", "Employee", "Company", "_System", "_CheckLimits", "_Payday"};
constexpr const char* kLimits =
    "CREATE TABLE IF NOT EXISTS _CheckLimits (long_shift_hours INTEGER, first_weekday INTEGER, show_notices BOOLEAN);"
    "INSERT INTO _CheckLimits SELECT 16, 0, 1 WHERE NOT EXISTS (SELECT 1 FROM _CheckLimits);";

Value TextOrNull(const std::string& text)
{
    return text.empty() ? Value() : Value(text);
}

bool Prepares(Engine& engine, const std::string& sql)
{
    try {
        engine.Prepare(sql);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// A table that lacks a column would refuse every write from now on, because its triggers ask for that column. It has no trail instead; the
// check of the file tells that.
void DropUnusableTriggers(Engine& engine, const char* table)
{
    if (Prepares(engine, fmt::format("INSERT INTO {} DEFAULT VALUES", table)) && Prepares(engine, fmt::format("DELETE FROM {}", table)) &&
        Prepares(engine, fmt::format("UPDATE {0} SET rowid = rowid", table))) {
        return;
    }
    const char* const start = *table == '_' ? "" : "_";
    for (const char* action : {"Insert", "Update", "Delete"}) {
        engine.RunScript(fmt::format("DROP TRIGGER IF EXISTS {}{}{}", start, table, action).c_str());
    }
}

void AddColumn(Engine& engine, const char* table, const char* column)
{
    const std::string find = fmt::format("SELECT 1 FROM pragma_table_info('{}') WHERE name = '{}' COLLATE NOCASE", table, column);
    if (engine.Prepare(find)->ReadRows()->EndOfFile()) {
        engine.RunScript(fmt::format("ALTER TABLE {} ADD COLUMN {} TEXT", table, column).c_str());
    }
}

} // namespace

bool IsUpToDate(Engine& engine)
{
    return HasTrail(engine) && engine.NumberFrom(kFindStructure) == 1 && engine.NumberFrom(kStructure) >= kFileStructure;
}

bool HasTrail(Engine& engine)
{
    return engine.NumberFrom(kFindTrail) == 2;
}

std::int64_t NextStep(Engine& engine)
{
    return engine.NumberFrom(kNext);
}

// A file that stays of an earlier version has no place for a reason.
void OpenStep(Engine& engine, const Author& author, std::int64_t step)
{
    engine.RunScript("DELETE FROM _Session");
    const bool hasReason = !author.reason.empty();
    const auto set = engine.Prepare(fmt::format("INSERT INTO _Session (user, program, step{}) VALUES (:user, :program, {}{})",
                                                hasReason ? ", reason" : "", step, hasReason ? ", :reason" : ""));
    set->Bind("user", TextOrNull(author.name));
    set->Bind("program", TextOrNull(author.program));
    if (hasReason) {
        set->Bind("reason", author.reason);
    }
    set->Run();
}

void CloseStep(Engine& engine)
{
    engine.RunScript(kClear);
}

void AddEntry(Engine& engine, const char* action, const std::string& file)
{
    const auto entry = engine.Prepare("INSERT INTO _Change (ChangedAt, ChangedBy, Program, Step, Action, After) "
                                      "SELECT datetime('now', 'localtime'), user, program, step, :action, :after FROM _Session");
    entry->Bind("action", action);
    entry->Bind("after", "{\"file\":" + JsonText(file) + "}");
    entry->Run();
}

void BringUpToDate(Engine& engine)
{
    engine.RunScript(kLimits);
    if (HasTrail(engine)) {
        AddColumn(engine, "_Session", "reason");
        AddColumn(engine, "_Change", "Reason");
    } else {
        engine.RunScript(kTrailSql);
        engine.RunScript(TrailTriggers().c_str());
    }
    engine.RunScript(TrailEntryTrigger().c_str());
    engine.RunScript(kPaydaySql);
    engine.RunScript(kProfileSql);
    for (const char* table : kTables) {
        DropUnusableTriggers(engine, table);
    }
}

} // namespace ptk
