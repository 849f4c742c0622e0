// The triggers of a server's tables that hand each change over to the edit trail.
#pragma once

#include <string>

namespace ptk {

// Of those tables that have been told of as long as there is a trail: their CREATE statements. Each tells the function ptk_tell its table
// and columns in the program's spelling; a column of date-times ends in @.
[[nodiscard]] std::string ServerTrailTriggers();

} // namespace ptk
