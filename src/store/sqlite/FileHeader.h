// The first bytes of a database file, read through the engine's own file handle: a second handle of this process would, when closed, take
// the engine's locks with it.
#pragma once

#include <cstdint>

struct sqlite3;

namespace ptk {

// The numbers by which this program marks its files. For both, 0 is accepted: tools that do not know these marks leave it behind.
inline constexpr std::int32_t kApplicationId = 0x50544B31; // "PTK1"
inline constexpr std::int32_t kFormatNumber = 1;           // the newest that this program knows

struct FileHeader
{
    bool complete = false;          // false for a file shorter than its header
    bool signature = false;         // whether it is a database at all; if not, the numbers below mean nothing
    bool writeAheadLog = false;     // kept with a write-ahead log beside it, which would let readers in
    std::int32_t applicationId = 0; // whose file it is
    std::int32_t formatNumber = 0;  // the user_version: 1 for this program's tables
    std::int64_t fileSize = 0;      // the least bytes of the whole file; 0 when the header does not tell, as old writers leave it
};

// Reads the header. Changes nothing and needs no hold. Raises the engine's failure when the file cannot be read.
[[nodiscard]] FileHeader ReadFileHeader(sqlite3* database);

// The file's size in bytes, read like the header. Of a file cut short, the engine itself notices only whole pages that are missing.
[[nodiscard]] std::int64_t FileSize(sqlite3* database);

} // namespace ptk
