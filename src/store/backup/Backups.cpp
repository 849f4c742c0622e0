#include "store/backup/Backups.h"

#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/backup/BackupNames.h"
#include "store/engine/RecordSet.h"
#include "store/postgres/ServerAddress.h"
#include "store/sqlite/EngineFailure.h"
#include "store/whole/DatabaseCopier.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <future>
#include <system_error>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr std::int32_t kNoDatabase = 26;
constexpr const char* kTables = "SELECT COUNT(*) FROM sqlite_master WHERE type = 'table' AND name COLLATE NOCASE IN "
                                "('Company', 'Employee', 'TimeRecord', '_System', '_StoredQuery')";
constexpr std::int32_t kTableCount = 5;

void RefuseForeignTables(SqliteEngine& engine)
{
    if (engine.Select(kTables)->Int32At(0) != kTableCount) {
        throw EngineFailure(kNoDatabase);
    }
}

// The copy goes to the disk while it is checked. Nobody cuts it short meanwhile, so it need not be read into buffers.
void FillDraft(SqliteEngine& database, FileDraft& draft, const CopyProgress& progress)
{
    database.CopyTo(draft.Path(), progress);
    auto flushed = std::async(std::launch::async, [&] { draft.File().Flush(); });
    SqliteEngine copy(draft.Path(), ReadOnly{});
    copy.RunScript("PRAGMA mmap_size = 2147418112"); // the engine's most
    copy.RefuseDamage();
    flushed.get();
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        names.push_back(at->path().filename().string());
    }
    return names;
}

// Makes the folder. The first free name from that moment on.
std::string NewBackup(const std::string& folder, DateTime now)
{
    MakeOwnFolder(folder);
    DateTime named = now;
    std::string path = folder + '/' + BackupName(named);
    while (IsThere(path)) {
        named = DateTime::FromSeconds(named.Seconds() + 1);
        path = folder + '/' + BackupName(named);
    }
    return path;
}

// Into a file of the program's own form, which is read anywhere without a server.
void BackUpServer(const std::string& address, const std::string& target, const CopyProgress& progress)
{
    RowProgress rows;
    if (progress) {
        rows = [&](std::int64_t done, std::int64_t all) { return progress(NarrowToInt32(done), NarrowToInt32(all)); };
    }
    static_cast<void>(CopyDatabase(address, target, rows));
}

} // namespace

std::string BackupFolder(const std::string& programFolder)
{
    return (NativePath(programFolder) / "backups").string();
}

std::string BackUp(SqliteEngine& database, const std::string& folder, DateTime now, const CopyProgress& progress)
{
    std::string path = NewBackup(folder, now);
    FileDraft draft(path);
    FillDraft(database, draft, progress);
    draft.PlaceNew();
    return path;
}

std::string BackUp(const std::string& path, const std::string& folder, DateTime now, const CopyProgress& progress)
{
    if (IsServerAddress(path)) {
        std::string backup = NewBackup(folder, now);
        BackUpServer(path, backup, progress);
        return backup;
    }
    SqliteEngine database(path);
    return BackUp(database, folder, now, progress);
}

void BackUpTo(const std::string& path, const std::string& target, const CopyProgress& progress)
{
    if (IsThere(target)) {
        throw FileDraft::AlreadyThere(target);
    }
    if (IsServerAddress(path)) {
        return BackUpServer(path, target, progress);
    }
    SqliteEngine database(path);
    FileDraft draft(target);
    FillDraft(database, draft, progress);
    draft.PlaceNew();
}

void PruneBackups(const std::string& folder, const std::string& newest, const std::string& spared)
{
    const auto made = BackupMoment(newest);
    if (!made) {
        return;
    }
    for (const std::string& name : DispensableBackups(NamesIn(folder), *made)) {
        std::error_code ignored; // the next pruning comes by it again
        const fs::path path = fs::path(folder) / name;
        if (name != newest && (spared.empty() || !fs::equivalent(path, spared, ignored))) {
            fs::remove(path, ignored);
        }
    }
}

void CopyBackup(const std::string& backup, const std::string& folder)
{
    const std::string name = fs::path(backup).filename().string();
    FileDraft draft((fs::path(folder) / name).string());
    CopyBytes(backup, draft);
    draft.Replace();
    PruneBackups(folder, name);
}

BackupContent ExamineBackup(const std::string& path)
{
    SqliteEngine engine(path, ReadOnly{});
    engine.RefuseDamage();
    RefuseForeignTables(engine);
    BackupContent content;
    content.employees = engine.Select("SELECT COUNT(*) FROM Employee")->Int64At(0);
    content.records = engine.Select("SELECT COUNT(*) FROM TimeRecord")->Int64At(0);
    const auto newest = engine.Select("SELECT MAX(StartTime) FROM TimeRecord");
    if (!newest->IsNull(0) && newest->HasStoredDate(0)) {
        content.newestShift = newest->DateTimeAt(0);
    }
    return content;
}

std::vector<std::string> BackupsIn(const std::string& folder)
{
    std::vector<std::string> names = NamesIn(folder);
    std::erase_if(names, [](const std::string& name) { return !BackupMoment(name); });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

BackupEntry CheckedBackup(const std::string& folder, const std::string& name)
{
    const std::string path = folder + '/' + name;
    BackupEntry entry{name, 0, {}, {}};
    std::error_code ignored;
    if (const auto size = fs::file_size(path, ignored); !ignored) {
        entry.size = static_cast<std::int64_t>(size);
    }
    Succeeds([&] { entry.content = ExamineBackup(path); }, [&](const Failure& reason) { entry.fault = reason.Description(); });
    return entry;
}

} // namespace ptk
