#include "store/backup/Backups.h"

#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "platform/files/Folder.h"
#include "platform/files/ProgramFolder.h"
#include "platform/files/SystemFile.h"
#include "platform/Succeeds.h"
#include "store/backup/BackupNames.h"
#include "store/sqlite/FileHeader.h"
#include "store/whole/DatabaseCopier.h"
#include "store/whole/DatabaseName.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <system_error>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr const char* kBackupIsFile = "a backup is a file; ptk-console copy-database copies into a server's database";

constexpr std::string_view kDamagedEnding = "-damaged.mdb"; // of a database whose bytes alone a restore could keep

// Whether a draft has the first bytes of a database of this program, or none yet: the engine may write them last.
bool BeginsAsOurs(const std::string& path)
{
    constexpr std::string_view kSignature("SQLite format 3\0", 16);
    constexpr std::size_t kIdAt = 68;
    std::string start(kIdAt + sizeof(std::int32_t), '\0');
    OpenRegularFile(path, O_RDONLY | O_NOFOLLOW).Read(start.data(), start.size());
    std::uint32_t id = 0;
    for (const char byte : start.substr(kIdAt)) {
        id = id * 256 + static_cast<unsigned char>(byte);
    }
    return start.find_first_not_of('\0') == std::string::npos ||
           (start.starts_with(kSignature) && id == static_cast<std::uint32_t>(kApplicationId));
}

// Removes what killed backups left, whatever name they were to get.
void ClearFolder(const std::string& folder)
{
    RemoveAbandonedDrafts(folder, [](const std::string& target, const std::string& draft) {
        bool ours = BackupMoment(target) || target.ends_with(kDamagedEnding);
        return ours || Succeeds([&] { return BeginsAsOurs(draft); });
    });
}

// The first free path for a backup that is named by `named` or a later second; `named` is then that second.
std::string NextFreePath(const std::string& folder, DateTime& named)
{
    std::string path = folder + '/' + BackupName(named);
    while (IsThere(path)) {
        named = DateTime::FromSeconds(named.Seconds() + 1);
        path = folder + '/' + BackupName(named);
    }
    return path;
}

void PrepareFolder(const std::string& folder)
{
    MakeOwnFolder(folder);
    ClearFolder(folder);
}

// Backs a server's database up into a file of the program's own form, which is read anywhere without a server.
void BackUpServer(const std::string& address, const std::string& target, const CopyProgress& progress)
{
    RowProgress rows;
    if (progress) {
        rows = [&](std::int64_t done, std::int64_t all) { return progress(NarrowToInt32(done), NarrowToInt32(all)); };
    }
    static_cast<void>(CopyDatabase(address, target, rows));
}

std::string BackUpServerInto(const std::string& address, const std::string& folder, DateTime now, const CopyProgress& progress)
{
    PrepareFolder(folder);
    for (;;) {
        std::string backup = NextFreePath(folder, now);
        try {
            BackUpServer(address, backup, progress);
            return backup;
        } catch (const Failure& failure) {
            if (failure.Number() != failure::PathFileAccess || !IsThere(backup)) { // else somebody made one of that name meanwhile
                throw;
            }
        }
    }
}

} // namespace

std::string BackupFolder(const std::string& programFolder)
{
    return (NativePath(programFolder) / "backups").string();
}

std::string BackUp(SqliteEngine& database, const std::string& folder, DateTime now, const CopyProgress& progress)
{
    PrepareFolder(folder);
    std::string path = NextFreePath(folder, now);
    FileDraft draft(path);
    FillChecked(database, draft, progress);
    while (!draft.PlaceAs(path)) { // somebody else has made one meanwhile
        path = NextFreePath(folder, now);
    }
    return path;
}

std::string BackUp(const std::string& path, const std::string& folder, DateTime now, const CopyProgress& progress)
{
    if (!IsFileName(path)) {
        return BackUpServerInto(path, folder, now, progress);
    }
    SqliteEngine database(path);
    return BackUp(database, folder, now, progress);
}

std::string BackupRefusal(const std::string& target)
{
    return IsFileName(target) ? "" : kBackupIsFile;
}

void BackUpTo(const std::string& path, const std::string& target, const CopyProgress& progress)
{
    if (IsThere(target)) {
        throw FileDraft::AlreadyThere(target);
    }
    ClearFolder(fs::path(target).parent_path().string());
    if (!IsFileName(path)) {
        return BackUpServer(path, target, progress);
    }
    SqliteEngine database(path);
    FileDraft draft(target);
    FillChecked(database, draft, progress);
    draft.PlaceNew();
}

void PruneBackups(const std::string& folder, const std::string& newest, const std::string& spared)
{
    const auto made = BackupMoment(newest);
    std::vector<std::string> names;
    if (!made || !Succeeds([&] { names = NamesIn(folder); })) { // the next pruning tries it again
        return;
    }
    for (const std::string& name : DispensableBackups(names, *made)) {
        std::error_code ignored; // what cannot be removed stays for the next pruning
        const fs::path path = fs::path(folder) / name;
        if (name != newest && (spared.empty() || !fs::equivalent(path, spared, ignored))) {
            fs::remove(path, ignored);
        }
    }
}

void CopyBackup(const std::string& backup, const std::string& folder)
{
    const std::string name = fs::path(backup).filename().string();
    ClearFolder(folder);
    FileDraft draft((fs::path(folder) / name).string());
    CopyBytes(backup, draft);
    draft.Replace();
    PruneBackups(folder, name);
}

std::vector<std::string> BackupsIn(const std::string& folder)
{
    std::vector<std::string> names = NamesIn(folder);
    std::erase_if(names, [](const std::string& name) { return !BackupMoment(name); });
    std::sort(names.begin(), names.end(), std::greater<>());
    return names;
}

BackupEntry CheckedBackup(const std::string& folder, const std::string& name, const CopyProgress& progress)
{
    const std::string path = folder + '/' + name;
    BackupEntry entry{name, 0, {}, {}};
    std::error_code ignored;
    if (const auto size = fs::file_size(path, ignored); !ignored) {
        entry.size = static_cast<std::int64_t>(size);
    }
    Succeeds([&] { entry.content = ExamineBackup(path, progress); }, [&](const Failure& reason) { entry.fault = reason.Description(); });
    return entry;
}

} // namespace ptk
