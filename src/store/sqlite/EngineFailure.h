// Failures of the engine: its primary result codes as numbers, "SQLite" as source.
#pragma once

#include "store/engine/EngineSource.h"

#include <string>

struct sqlite3;

namespace ptk {

// With the code's meaning for the program's users as description ("the database is in use by another program").
[[nodiscard]] Failure EngineFailure(int resultCode);
[[nodiscard]] Failure EngineFailure(int resultCode, std::string description);

// With the code's meaning, or, where that is one of many (a wrong statement, a refused value), in the database's own words.
[[nodiscard]] Failure EngineFailure(int resultCode, sqlite3* database);

// Nothing on success.
void RaiseUnlessDone(sqlite3* database, int resultCode);

} // namespace ptk
