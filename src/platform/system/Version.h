// The version of the programs.
#pragma once

namespace ptk {

// The version as the build's project line has it, such as "1.0".
[[nodiscard]] const char* Version();

} // namespace ptk
