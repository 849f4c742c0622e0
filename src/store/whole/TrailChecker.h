// Looks whether a database file still writes its own edit trail, and who else does something when it is written.
#pragma once

#include "store/sqlite/SqliteEngine.h"

#include <string>
#include <vector>

namespace ptk {

// Sentences go behind `problems`: triggers and views of the trail that are missing or are not the program's, by their texts, since a trail
// that tells nothing refuses no write, and triggers of others on the program's tables. `hasTrail`: a file of an earlier version has none,
// and misses nothing.
void CheckRoutines(SqliteEngine& engine, bool hasTrail, std::vector<std::string>& problems);

} // namespace ptk
