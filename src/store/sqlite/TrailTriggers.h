// The triggers of a file's tables that hand each change over to the edit trail.
#pragma once

#include <string>

namespace ptk {

// The texts are in every file that was made so far, byte for byte; any other one of a trigger of ours is taken for a stranger's.

// The CREATE statements of the view that changes are handed over by, and of the triggers of those tables that have been told of as long as
// there is a trail. To be run once behind the trail's own tables.
[[nodiscard]] std::string TrailTriggers();

// The statements of the trigger that makes an entry of what is handed over. They may be run again over an older version of it.
[[nodiscard]] std::string TrailEntryTrigger();

} // namespace ptk
