// Which version of the programs this is.
#pragma once

namespace ptk {

// As the build has it, "1.0".
[[nodiscard]] const char* Version();

} // namespace ptk
