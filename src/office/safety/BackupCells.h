// A backup as a row for people.
#pragma once

#include "store/backup/Backups.h"

#include <string>

namespace ptk {

struct BackupCells
{
    std::string made; // "Wed 03/05/2003 05:04:09 PM", from the name
    std::string size; // "84 KB", "12.3 MB"
    std::string employees;
    std::string records;
    std::string newestShift; // day of the newest shift; empty without one
};

// The cells for a backup's name and size. Its content is left empty, because that needs a look into the file.
[[nodiscard]] BackupCells BackupCellsOf(const std::string& name, std::int64_t size);

// The cells of a backup with its content. REQUIRES: the backup can be read.
[[nodiscard]] BackupCells BackupCellsOf(const BackupEntry& entry);

} // namespace ptk
