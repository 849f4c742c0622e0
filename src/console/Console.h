// What every command of ptk-console works with, and how it answers: an exit status, text on `out`, one line on `err` for a failure.
#pragma once

#include "platform/Failure.h"

#include <ostream>
#include <string>
#include <string_view>

namespace ptk {

class Clock;

// Exit statuses.
namespace status {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;
inline constexpr int ProblemsFound = 3; // done, but what it found should be mended
} // namespace status

// The references outlive the command.
struct Console
{
    std::string programFolder; // without a trailing separator
    const ptk::Clock& clock;
    std::ostream& out;
    std::ostream& err;
    bool terminal = false; // somebody reads `out` on one
};

// "ptk-console: NUMBER: TEXT" on one line, without the number where there is none (0).
void Complain(std::ostream& err, const Failure& failure);

// Says what is wrong with the command line; answers the status for that.
[[nodiscard]] int RefuseUsage(std::ostream& err, const std::string& text);

// Texts carry CR LF, as files keep them; a terminal wants LF alone. Names come from whoever filled the database: any other control
// character but the tab, which a terminal might take for a command, becomes a question mark.
[[nodiscard]] std::string TerminalText(std::string_view text);

} // namespace ptk
