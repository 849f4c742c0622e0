// Backups of the database: made by the engine itself, checked whole, and only then given their name.
#pragma once

#include "platform/text/DateTime.h"
#include "store/backup/CheckedCopy.h"
#include "store/sqlite/SqliteEngine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

// All paths are in the platform's own form. Where nothing else is said, failures are those of FileDraft and of the engine. Whatever makes a
// backup first removes what killed backups left in its folder.

// "<program folder>/backups".
[[nodiscard]] std::string BackupFolder(const std::string& programFolder);

// Makes the folder (for its owner only) where it is missing, and in it a backup named by `now`, or by the next second that is free. The
// backup is as of one moment, sound, for its owner only, and safe on the disk when its path is answered. On failure there is nothing new.
// Raises 11 when the database is damaged.
std::string BackUp(SqliteEngine& database, const std::string& folder, DateTime now, const CopyProgress& progress = {});

// Opens the closed database `path` for one backup, and raises what opening it raises, too: 5 when a file is held. A server's database,
// whose address `path` is, is backed up into a file, too; `progress` is told of rows then.
std::string BackUp(const std::string& path, const std::string& folder, DateTime now, const CopyProgress& progress = {});

// Why no backup can have this name, in a sentence without a full stop; empty where one can.
[[nodiscard]] std::string BackupRefusal(const std::string& target);

// Backs the database `path` up to the file `target`. Raises 75 when there is something of that name, 76 without its folder.
void BackUpTo(const std::string& path, const std::string& target, const CopyProgress& progress = {});

// Removes backups that need not be kept now that the backup named `newest` was made; never that one, nor the file `spared`. See
// DispensableBackups.
void PruneBackups(const std::string& folder, const std::string& newest, const std::string& spared = "");

// Puts a finished backup into a second folder, whole or not at all, and prunes there. Raises 76 where that folder is missing: it is not
// made, since another disk may only not be there.
void CopyBackup(const std::string& backup, const std::string& folder);

struct BackupEntry
{
    std::string name;
    std::int64_t size = 0;                // bytes
    std::optional<BackupContent> content; // nothing for a backup that is of no use
    std::string fault;                    // why it is of no use
};

// The names of the backups in a folder, newest first; none without the folder. Raises 70 and the like for a folder that cannot be read.
[[nodiscard]] std::vector<std::string> BackupsIn(const std::string& folder);

// Checks the backup of that name in the folder whole. There is no content also where `progress` ended it.
[[nodiscard]] BackupEntry CheckedBackup(const std::string& folder, const std::string& name, const CopyProgress& progress = {});

} // namespace ptk
