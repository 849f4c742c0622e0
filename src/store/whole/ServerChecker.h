// The part of a database's check that is about what a server keeps it in.
#pragma once

#include "store/whole/DatabaseChecker.h"

#include <string>

namespace ptk {

// Checks the database at a server's address as CheckDatabase does. The server itself looks after its pages.
[[nodiscard]] DatabaseCheck CheckServerDatabase(const std::string& address);

} // namespace ptk
