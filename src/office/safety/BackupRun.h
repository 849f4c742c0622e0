// Making and restoring backups the way the program does it everywhere: into its folder, pruned, with a second copy where one is wanted.
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
    bool secondIsNews = false; // no backup before told of that folder's problem
};

// The key BackupFolder of the configuration; empty without it.
[[nodiscard]] std::string SecondBackupFolder(CFileAdaptor& configuration);

// Without the key where `folder` is empty. REQUIRES: no refusal, see below.
void SecondBackupFolder(CFileAdaptor& configuration, const std::string& folder);

// Why the configuration cannot hold this folder, one sentence; empty where it can. Empty is no folder, and fine.
// The folder of the backups themselves is none.
[[nodiscard]] std::string SecondFolderRefusal(const std::string& folder, const std::string& programFolder);

// Raises what store/Backups.h says; a second copy that fails is no failure.
[[nodiscard]] BackupOutcome MakeBackup(const BackupOrder& order, const CopyProgress& progress = {});

// Whether there is no backup of this day yet, by the names. Those of later days were named by a clock that went wrong.
[[nodiscard]] bool BackupIsDue(const std::string& programFolder, DateTime today);

// The number of the newest change in the database's trail; 0 without one. Raises what reading the trail raises.
[[nodiscard]] std::int64_t NewestChange(const std::shared_ptr<CJetDB>& database);

// Puts `file` in the database's place, see store/Restore.h, and prunes. Answers the path of what was kept of the present database; empty
// where there was none.
std::string RestoreBackup(const BackupOrder& order, const std::string& file, const Author& author, const CopyProgress& progress = {});

} // namespace ptk
