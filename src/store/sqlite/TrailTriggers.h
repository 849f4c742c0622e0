// The triggers of a file's tables that hand each change over to the edit trail.
#pragma once

#include <string>

namespace ptk {

// Of those tables that have been told of as long as there is a trail: their CREATE statements, to be run once behind the trail's own
// tables. The texts are in every file that was made so far, byte for byte; any other one of a trigger of ours is taken for a stranger's.
[[nodiscard]] std::string TrailTriggers();

} // namespace ptk
