// Asks at the terminal for the password that a database server wants.
#pragma once

#include <optional>
#include <string>

namespace ptk {

// From the terminal itself, wherever input and output lead, and without showing it; nothing where there is no terminal, as in a scheduled
// job.
[[nodiscard]] std::optional<std::string> AskAtTerminal(const std::string& address);

} // namespace ptk
