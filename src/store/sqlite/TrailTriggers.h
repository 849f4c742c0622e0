// The triggers of a file's tables that hand each change over to the edit trail.
#pragma once

#include <string>

namespace ptk {

// Every file that was made so far holds these texts byte for byte; any other text of a trigger of ours is taken for a stranger's.

// The CREATE statements of the view through which changes are handed over, and of the triggers on those tables whose changes have been kept
// as long as there is a trail. They are run once, behind the trail's own tables.
[[nodiscard]] std::string TrailTriggers();

// The statements that make the trigger which writes an entry of what is handed over. They may be run again over an older version of it.
[[nodiscard]] std::string TrailEntryTrigger();

} // namespace ptk
