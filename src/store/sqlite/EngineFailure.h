// Failures of the engine: its primary result codes as numbers, "SQLite" as source.
#pragma once

#include "store/engine/EngineSource.h"

#include <string>

struct sqlite3;

namespace ptk {

// A failure described by what the code means to the program's users ("the database is in use by another program"), or by `description`.
[[nodiscard]] Failure EngineFailure(int resultCode);
[[nodiscard]] Failure EngineFailure(int resultCode, std::string description);

// A failure described by the code's meaning, or, where a code has many causes (a wrong statement, a refused value), in the engine's own
// words.
[[nodiscard]] Failure EngineFailure(int resultCode, sqlite3* database);

// Raises the failure of `resultCode`; does nothing on success.
void RaiseUnlessDone(sqlite3* database, int resultCode);

} // namespace ptk
