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

// What a command is run with. REQUIRES: what the references name outlives the command.
struct Console
{
    std::string programFolder; // without a trailing separator
    const ptk::Clock& clock;
    std::ostream& out;
    std::ostream& err;
    bool terminal = false; // whether `out` is a terminal
};

// Writes "ptk-console: NUMBER: TEXT" on one line, without the number where it is 0.
void Complain(std::ostream& err, const Failure& failure);

// Says what is wrong with the command line; answers WrongUsage.
[[nodiscard]] int RefuseUsage(std::ostream& err, const std::string& text);

// A text made fit for a terminal. CR LF, as files have it, becomes LF. Every other control character but the tab becomes a question mark,
// since a terminal might obey it: names come from whoever filled the database.
[[nodiscard]] std::string TerminalText(std::string_view text);

} // namespace ptk
