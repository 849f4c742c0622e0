// The tables that a server's database has, and which version of them.
#pragma once

#include <cstdint>

namespace ptk {

class ServerLine;

inline constexpr std::int64_t kServerStructure = 3; // the newest that this program knows

// Brings an older version up to date, whole or not at all. Raises 26 for a database that is not this program's, is of a newer version, or
// is of an older one that this role may not change; the line is of no use then.
void RequireStructure(ServerLine& line);

} // namespace ptk
