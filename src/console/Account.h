// The author of what ptk-console stores.
#pragma once

#include "store/engine/Author.h"

namespace ptk {

// The name of the account whose rights the process has, or its number where it has no name; and this program's name.
[[nodiscard]] Author ConsoleAuthor();

} // namespace ptk
