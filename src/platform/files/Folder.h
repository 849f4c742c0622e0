// Lists the files of a folder. The standard library's own directory iterator ends the program where memory runs out.
#pragma once

#include <string>
#include <vector>

namespace ptk {

// The names in the folder, in no order; none where there is no such folder. Raises 70 and the like where it cannot be read.
[[nodiscard]] std::vector<std::string> NamesIn(const std::string& folder);

} // namespace ptk
