// The tables that a server's database has, and which version of them.
#pragma once

#include <cstdint>

namespace ptk {

class ServerLine;

inline constexpr std::int64_t kServerStructure = 1; // the newest that this program knows

// Raises 26 for a database that is not this program's, or of a newer version.
void RequireStructure(ServerLine& line);

} // namespace ptk
