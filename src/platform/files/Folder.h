// What stands in a folder. The standard library's own walk through one ends the program where memory runs out.
#pragma once

#include <string>
#include <vector>

namespace ptk {

// The names in it, in no order; none where there is no such folder. Raises 70 and the like of one that cannot be read.
[[nodiscard]] std::vector<std::string> NamesIn(const std::string& folder);

} // namespace ptk
