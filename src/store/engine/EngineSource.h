// Which failures are a database's own.
#pragma once

#include "platform/Failure.h"

namespace ptk {

// The sources of failures, by what keeps the database.
inline constexpr const char* kFileSource = "SQLite";
inline constexpr const char* kServerSource = "PostgreSQL";

[[nodiscard]] inline bool IsOfDatabase(const Failure& failure)
{
    return failure.Source() == kFileSource || failure.Source() == kServerSource;
}

} // namespace ptk
