// The triggers of a server's tables that hand each change over to the edit trail.
#pragma once

#include <string>

namespace ptk {

// The CREATE statements of the triggers on those tables whose changes have been kept as long as there is a trail. Each trigger tells the
// function ptk_tell its table and columns in the program's spelling; a column of date-times ends in @.
[[nodiscard]] std::string ServerTrailTriggers();

} // namespace ptk
