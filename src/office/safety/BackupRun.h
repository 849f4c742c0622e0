// Makes and restores backups in the way of the whole program: in the program's folder, with old ones pruned, and with a second copy if one
// is wanted.
#pragma once

#include "platform/text/DateTime.h"
#include "store/backup/Backups.h"
#include "store/engine/Author.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ptk {

class CFileAdaptor;
class CJetDB;

struct BackupOrder
{
    std::string database; // the file, in the platform's own form
    std::string programFolder;
    std::string secondFolder; // empty: none
    DateTime now;
};

struct BackupOutcome
{
    std::string path;          // of the new backup
    std::string secondProblem; // why there is no second copy, in words; empty where there is one or none is wanted
    bool secondIsNews = false; // whether this problem of that folder has not been told before
};

// The second folder as the configuration names it, by the key BackupFolder; empty without the key.
[[nodiscard]] std::string SecondBackupFolder(CFileAdaptor& configuration);

// Sets the key, or removes it if `folder` is empty. REQUIRES: SecondFolderRefusal is empty.
void SecondBackupFolder(CFileAdaptor& configuration, const std::string& folder);

// Why this cannot be the second folder, in one sentence; empty if it can. An empty name stands for no second folder and is not refused. The
// folder of the backups themselves is refused.
[[nodiscard]] std::string SecondFolderRefusal(const std::string& folder, const std::string& programFolder);

// Makes a backup and prunes old ones. Raises what store/backup/Backups.h says; a second copy that fails is no failure.
[[nodiscard]] BackupOutcome MakeBackup(const BackupOrder& order, const CopyProgress& progress = {});

// Whether there is no backup of this day yet, by the names. Backups of later days do not count: a wrong clock named them.
[[nodiscard]] bool BackupIsDue(const std::string& programFolder, DateTime today);

// The number of the newest entry in the database's trail; 0 without one. Raises what reading the trail raises.
[[nodiscard]] std::int64_t NewestChange(const std::shared_ptr<CJetDB>& database);

// Restores `file` as store/backup/Restore.h says, and prunes if the present database was kept. Answers the path of what was kept of the
// present database; empty if there was none.
std::string RestoreBackup(const BackupOrder& order, const std::string& file, const Author& author, const CopyProgress& progress = {});

} // namespace ptk
