// The first bytes of a database file, read through the engine's own file handle: a second handle of this process would, when closed, take
// the engine's locks with it.
#pragma once

#include <cstdint>

struct sqlite3;

namespace ptk {

// What this program marks its files with; 0, which tools that know nothing of it leave behind, is accepted for both.
inline constexpr std::int32_t kApplicationId = 0x50544B31; // "PTK1"
inline constexpr std::int32_t kFormatNumber = 1;           // the newest that this program knows

struct FileHeader
{
    bool complete = false;          // false for a file shorter than its header
    bool signature = false;         // of a database at all; without it the numbers below mean nothing
    bool writeAheadLog = false;     // kept with a write-ahead log beside it, which would let readers in
    std::int32_t applicationId = 0; // whose file it is
    std::int32_t formatNumber = 0;  // the user_version: 1 for this program's tables
    std::int64_t fileSize = 0;      // of the whole file in bytes, at least; 0 when the header does not know, as old writers leave it
};

// Both change nothing and need no hold. Raise the engine's failure when the file cannot be read.
[[nodiscard]] FileHeader ReadFileHeader(sqlite3* database);

// Bytes; the engine itself misses only whole pages of a file cut short.
[[nodiscard]] std::int64_t FileSize(sqlite3* database);

} // namespace ptk
