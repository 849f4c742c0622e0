// A backup as a row for people.
#pragma once

#include "store/backup/Backups.h"

#include <string>

namespace ptk {

struct BackupCells
{
    std::string made; // "Wed 03/05/2003 05:04 PM", by the name
    std::string size; // "84 KB", "12.3 MB"
    std::string employees;
    std::string records;
    std::string newestShift; // its day; empty without one
};

// Without what is in it: that takes a look into the file.
[[nodiscard]] BackupCells CellsOf(const std::string& name, std::int64_t size);

// REQUIRES: the backup can be read.
[[nodiscard]] BackupCells CellsOf(const BackupEntry& entry);

} // namespace ptk
