// Prepares the process before anything else, and tells how much memory it uses.
#pragma once

#include <cstddef>

namespace ptk {

// From here on, writing to a reader that went away, or beyond the limit on file size, is a failure that the writer is told, not the end of
// the process. A standard stream that the caller closed is opened on nothing, so that the database or a report does not get its number.
void SettleProcess();

// How many bytes of memory the process occupies; 0 where the system does not tell.
[[nodiscard]] std::size_t MemoryInUse();

} // namespace ptk
