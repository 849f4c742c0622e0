// What a program settles with the system before anything else, and what it takes of it.
#pragma once

#include <cstddef>

namespace ptk {

// From here on, writing to a reader that went away or beyond the limit on file size is a failure that the writer is told, not the end of
// the process. And a standard stream that the caller closed does not become the number of the database or of a report.
void SettleProcess();

// What the process has in memory at present, in bytes; 0 where the system does not tell.
[[nodiscard]] std::size_t MemoryInUse();

} // namespace ptk
