#include "store/backup/Restore.h"

#include "platform/files/FailureOfFile.h"
#include "platform/files/FileDraft.h"
#include "platform/files/FileSteps.h"
#include "store/backup/BackupNames.h"
#include "store/backup/Backups.h"
#include "store/engine/EngineNumber.h"
#include "store/engine/EngineSource.h"
#include "store/whole/DatabaseName.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>

namespace ptk {

namespace {

constexpr auto kNoRestoreOnServer =
    "A database on a server is not replaced by a backup: make an empty database there, copy the backup into it with ptk-console "
    "copy-database --from, and enter its address as DatabasePath";

namespace fs = std::filesystem;

constexpr const char* kBeside[] = {"-journal", "-wal", "-shm"}; // where the engine keeps what it has not finished

// Whether a failure is that of a file which is there and of no use as a database.
bool IsSpoiled(const Failure& failure)
{
    return IsOfDatabase(failure) && (failure.Number() == engine::Damaged || failure.Number() == engine::NoDatabase);
}

// Runs the steps, and raises what they raise with the file that it is about: failures of the engine are the database's, all others of the
// file that is written.
template <typename Steps>
void AboutDatabase(const std::string& database, const std::string& written, const Steps& steps)
{
    try {
        steps();
    } catch (const FailureOfFile&) {
        throw;
    } catch (const Failure& failure) {
        throw FailureOfFile(failure, IsOfDatabase(failure) ? database : written);
    }
}

void AddEntry(SqliteEngine& restored, const RestoreOrder& order)
{
    if (!restored.HasTrail()) {
        return;
    }
    restored.SignAs(order.author);
    restored.Write([&] { restored.AddWholeEntry("restore", order.file); });
}

// A failure of the engine is about the backup; one of a file, about the draft beside the database that it is to replace.
void FillDraft(const FileDraft& draft, const RestoreOrder& order, const CopyProgress& progress)
{
    AboutDatabase(order.file, order.database, [&] {
        SqliteEngine(order.file, ReadOnly{}).CopyTo(draft.Path(), PartOf(progress, 0, 2));
        static_cast<void>(ExamineBackup(draft.Path(), PartOf(progress, 1, 2)));
    });
    SqliteEngine restored(draft.Path());
    AddEntry(restored, order);
}

std::string FreePath(const RestoreOrder& order, const std::string& ending)
{
    DateTime moment = order.now;
    std::string path;
    do {
        path = order.backups + '/' + fs::path(BackupName(moment)).stem().string() + ending;
        moment = DateTime::FromSeconds(moment.Seconds() + 1);
    } while (IsThere(path));
    return path;
}

void KeepBytes(const std::string& from, const std::string& to)
{
    FileDraft draft(to);
    CopyBytes(from, draft);
    draft.PlaceNew();
}

// Moves what the engine left beside a database that it cannot finish any more: it must not be taken for the restored one's.
void MoveLeftovers(const RestoreOrder& order, const std::string& kept)
{
    for (const char* ending : kBeside) {
        if (IsThere(order.database + ending)) {
            KeepBytes(order.database + ending, kept + ending);
            fs::remove(order.database + ending);
        }
    }
}

std::string KeepSpoiled(const RestoreOrder& order)
{
    MakeOwnFolder(order.backups);
    const std::string kept = FreePath(order, "-damaged.mdb");
    if (IsThere(order.database)) {
        KeepBytes(order.database, kept);
    }
    MoveLeftovers(order, kept);
    return IsThere(order.database) ? kept : std::string();
}

bool HasLeftovers(const RestoreOrder& order)
{
    return std::any_of(std::begin(kBeside), std::end(kBeside), [&](const char* ending) { return IsThere(order.database + ending); });
}

// The present database, held while it is replaced, and what was kept of it.
struct Present
{
    std::unique_ptr<SqliteEngine> held;
    std::string kept;
};

Present KeepPresent(const RestoreOrder& order, const CopyProgress& progress)
{
    if (!IsThere(order.database)) {
        return {nullptr, HasLeftovers(order) ? KeepSpoiled(order) : std::string()};
    }
    try {
        Present present{std::make_unique<SqliteEngine>(order.database), {}};
        present.kept = BackUp(*present.held, order.backups, order.now, progress);
        return present;
    } catch (const Failure& failure) {
        if (!IsSpoiled(failure)) {
            throw;
        }
    }
    return {nullptr, KeepSpoiled(order)};
}

} // namespace

std::string RestoreRefusal(const std::string& database)
{
    return IsFileName(database) ? "" : kNoRestoreOnServer;
}

std::string Restore(const RestoreOrder& order, const CopyProgress& progress)
{
    if (const std::string refusal = RestoreRefusal(order.database); !refusal.empty()) {
        throw Failure(0, "PTK", refusal);
    }
    std::error_code ignored;
    RestoreOrder target = order;
    if (fs::is_symlink(order.database, ignored)) {
        target.database = fs::weakly_canonical(order.database).string(); // the link stays a link
    }
    Present present;
    AboutDatabase(target.database, target.database, [&] {
        FileDraft draft(target.database);
        FillDraft(draft, target, PartOf(progress, 0, 2));
        AboutDatabase(target.database, target.backups, [&] { present = KeepPresent(target, PartOf(progress, 1, 2)); });
        draft.Replace();
    });
    return present.kept;
}

} // namespace ptk
