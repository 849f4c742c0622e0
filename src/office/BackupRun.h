// Making a backup the way the program does it everywhere: into its folder, pruned, with a second copy where one is wanted.
#pragma once

#include "platform/DateTime.h"
#include "store/Backups.h"

#include <string>

namespace ptk {

class CFileAdaptor;

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
};

// The key BackupFolder of the configuration; empty without it.
[[nodiscard]] std::string SecondBackupFolder(CFileAdaptor& configuration);

// Raises what store/Backups.h says; a second copy that fails is no failure.
[[nodiscard]] BackupOutcome MakeBackup(const BackupOrder& order, const CopyProgress& progress = {});

// Whether there is no backup of this day or a later one yet, by the names.
[[nodiscard]] bool BackupIsDue(const std::string& programFolder, DateTime today);

} // namespace ptk
