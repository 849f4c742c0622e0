// The numbers of a database's failures. They are the file engine's own, which the program's log and boxes have always shown; a server's
// failures get the numbers that the same faults of a file have.
#pragma once

#include <cstdint>

namespace ptk::engine {

inline constexpr std::int32_t Refused = 1; // a statement that the engine does not understand
inline constexpr std::int32_t Busy = 5;
inline constexpr std::int32_t NoMemory = 7;
inline constexpr std::int32_t ReadOnly = 8;
inline constexpr std::int32_t Interrupted = 9;
inline constexpr std::int32_t Lost = 10; // the disk or the connection to the server failed
inline constexpr std::int32_t Damaged = 11;
inline constexpr std::int32_t NotFound = 12; // a stored query
inline constexpr std::int32_t DiskFull = 13;
inline constexpr std::int32_t CannotOpen = 14; // or missing
inline constexpr std::int32_t Constraint = 19;
inline constexpr std::int32_t Misuse = 21;
inline constexpr std::int32_t Parameter = 25;
inline constexpr std::int32_t NoDatabase = 26; // not this program's

} // namespace ptk::engine
