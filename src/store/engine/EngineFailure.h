// Failures of the engine: its primary result codes as numbers, "SQLite" as source.
#pragma once

#include "platform/Failure.h"

#include <string>

struct sqlite3;

namespace ptk {

inline constexpr const char* kEngineSource = "SQLite";

Failure EngineFailure(int resultCode, std::string description);
void RaiseUnlessDone(sqlite3* database, int resultCode); // nothing on success; the database's own words otherwise

} // namespace ptk
