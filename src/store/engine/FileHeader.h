// The first bytes of a database file, read through the engine's own file handle: a second handle of this process would, when closed, take
// the engine's locks with it.
#pragma once

#include <cstdint>

struct sqlite3;

namespace ptk {

struct FileHeader
{
    bool complete = false;         // false for a file shorter than its header
    bool truncated = false;        // the engine itself misses only whole pages
    bool writeAheadLog = false;    // kept with a write-ahead log beside it, which would let readers in
    std::int32_t formatNumber = 0; // the user_version: 1 for this program's tables
};

// Raises the engine's failure when the file cannot be read.
FileHeader ReadFileHeader(sqlite3* database);

} // namespace ptk
