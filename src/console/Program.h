// ptk-console as a function: the command line in, text and an exit status out.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace ptk {

class Clock;

// Runs `words`, the command line without the program's name, and answers the exit status. Never raises; output that could not be written is
// a failure, too. `terminal`: whether `out` is a terminal, to which no byte order mark and no PDF file are written.
[[nodiscard]] int RunConsole(const std::vector<std::string>& words, const Clock& clock, std::ostream& out, std::ostream& err,
                             bool terminal = false);

} // namespace ptk
