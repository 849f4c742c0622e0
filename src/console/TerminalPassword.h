// Asks at the terminal for the password that a database server wants.
#pragma once

#include <optional>
#include <string>

namespace ptk {

// Asks on the terminal itself, even where input and output are redirected, and does not show what is typed. Nothing where there is no
// terminal, as in a scheduled job, or where Ctrl+C was typed.
[[nodiscard]] std::optional<std::string> AskAtTerminal(const std::string& address);

} // namespace ptk
