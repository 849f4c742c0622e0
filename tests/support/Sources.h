// Where this program's own sources lie, for tests that read what ships beside them.
#pragma once

#include <string>

namespace ptk {

// The root of the source tree, without a separator at its end.
[[nodiscard]] std::string SourceFolder();

} // namespace ptk
