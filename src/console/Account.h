// Who runs the program on a terminal.
#pragma once

#include "store/engine/Author.h"

namespace ptk {

// The name of the account that the process has the rights of, its number where it has no name; and this program.
[[nodiscard]] Author ConsoleAuthor();

} // namespace ptk
