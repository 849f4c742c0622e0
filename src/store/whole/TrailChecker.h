// Checks whether a database file still writes its own edit trail, and whether others do something when it is written.
#pragma once

#include "store/sqlite/SqliteEngine.h"

#include <string>
#include <vector>

namespace ptk {

// Puts sentences behind `problems`: about triggers and views of the trail that are missing or whose texts are not the program's, since a
// trail that tells nothing refuses no write, and about triggers of others on the program's tables. Without `hasTrail`, as in a file of an
// earlier version, nothing of a trail is missing.
void CheckRoutines(SqliteEngine& engine, bool hasTrail, std::vector<std::string>& problems);

} // namespace ptk
