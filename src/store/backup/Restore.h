// Puts a backup in the place of the database.
#pragma once

#include "platform/text/DateTime.h"
#include "store/engine/Author.h"
#include "store/sqlite/SqliteEngine.h"

#include <string>

namespace ptk {

struct RestoreOrder
{
    std::string file;     // the backup; all paths are in the platform's own form
    std::string database; // that the backup takes the place of; may be missing
    std::string backups;  // the folder where the present database is kept
    DateTime now;
    Author author;
};

// Why no backup can take the place of this database, with what to do instead: others may be at work on a server. Empty for a file.
[[nodiscard]] std::string RestoreRefusal(const std::string& database);

// Restores the backup, or raises the refusal where RestoreRefusal has one.
//
// The backup is checked first; it stays as it is. The present database is backed up. Where it is spoiled, its bytes are kept in `backups`
// under the name of a backup with "-damaged" in it, and a journal or a log beside it is moved there. The restored one has one entry more in
// its trail, where it has a trail. Answers the path of what was kept of the present database; empty where there was none. Raises what
// examining the backup raises, 5 when the database is held, 9 when `progress` ended it, and 61, 57, 70 of files, each with the path of the
// file that it is about at its end. Nothing has changed then, except that there may be a backup more, and a spoiled database's journal or
// log may be moved.
[[nodiscard]] std::string Restore(const RestoreOrder& order, const CopyProgress& progress = {});

} // namespace ptk
