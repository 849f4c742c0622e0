// Copies of a database file that are checked whole before anything comes to rely on them.
#pragma once

#include "platform/text/DateTime.h"
#include "store/sqlite/SqliteEngine.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

class FileDraft;

// All paths are in the platform's own form. `progress` is asked at least every 50 milliseconds while a file is checked, copied or flushed,
// so that a window stays alive; its false ends the work with 9.

// The progress of one part of several, counted from 0, which follow each other and take about as long.
[[nodiscard]] CopyProgress PartOf(const CopyProgress& whole, std::int32_t part, std::int32_t parts);

// Copies the database into the empty draft, as of one moment, checked and safe on the disk, but not yet placed. Raises 11 when it is
// damaged, what reading it raises, and those of files (61, 57, 70) for the draft, which their source tells from the engine's failures.
void FillChecked(SqliteEngine& database, FileDraft& draft, const CopyProgress& progress);

struct BackupContent
{
    std::int64_t employees = 0;
    std::int64_t records = 0;
    std::optional<DateTime> newestShift; // its start
};

// Checks the file whole and tells what is in it. Raises the failure that makes it unusable: missing (14), no database of this program (26),
// damaged (11), in use (5). Others may read it meanwhile; it stays as it is.
[[nodiscard]] BackupContent ExamineBackup(const std::string& path, const CopyProgress& progress = {});

} // namespace ptk
