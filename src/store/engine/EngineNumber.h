// The numbers of a database's failures: the file's engine's own, which the program's log and boxes have always shown. A server's failures
// come under the numbers that the same faults of a file have.
#pragma once

#include <cstdint>

namespace ptk::engine {

inline constexpr std::int32_t Refused = 1; // a statement that means nothing
inline constexpr std::int32_t Busy = 5;
inline constexpr std::int32_t NoMemory = 7;
inline constexpr std::int32_t ReadOnly = 8;
inline constexpr std::int32_t Interrupted = 9;
inline constexpr std::int32_t Lost = 10; // the disk failed, or the line to the server
inline constexpr std::int32_t Damaged = 11;
inline constexpr std::int32_t NotFound = 12; // a stored query
inline constexpr std::int32_t DiskFull = 13;
inline constexpr std::int32_t CannotOpen = 14; // missing, too
inline constexpr std::int32_t Constraint = 19;
inline constexpr std::int32_t Misuse = 21;
inline constexpr std::int32_t Parameter = 25;
inline constexpr std::int32_t NoDatabase = 26; // not this program's

} // namespace ptk::engine
