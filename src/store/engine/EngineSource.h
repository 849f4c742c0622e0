// Tells which failures are a database's own.
#pragma once

#include "platform/Failure.h"

namespace ptk {

// The sources of a database's failures: of a file, and of a server.
inline constexpr const char* kFileSource = "SQLite";
inline constexpr const char* kServerSource = "PostgreSQL";

[[nodiscard]] inline bool IsOfDatabase(const Failure& failure)
{
    return failure.Source() == kFileSource || failure.Source() == kServerSource;
}

} // namespace ptk
