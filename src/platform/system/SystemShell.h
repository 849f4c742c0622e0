// Hands documents to the desktop's opener and to the print spooler.
#pragma once

#include "platform/GoesOn.h"
#include "platform/system/Desktop.h"

#include <cstdint>
#include <string>

namespace ptk {

// `xdg-open` for open, whose refusal (no program for it) is waited for, up to a second; `lp` for print, under the title where there is one,
// whose refusal (no printer, no spooler) is waited for, up to five.
// Returns the shell's codes: above ShellSuccess when taken over, ShellFileNotFound for a missing file, ShellNoProgram when the program is
// not there or refuses; `refusal` then says why, in words, and is empty otherwise. Path and title travel as arguments, never through a
// command interpreter. `goesOn` is asked a hundred times a second meanwhile; false ends the wait: what was to be printed counts as refused,
// what was to be opened as taken over.
[[nodiscard]] std::int32_t RunSystemShell(ShellVerb verb, const std::string& path, const std::string& title, std::string& refusal,
                                          const GoesOn& goesOn = {});

// For those who need no reason.
[[nodiscard]] inline std::int32_t RunSystemShell(ShellVerb verb, const std::string& path)
{
    std::string ignored;
    return RunSystemShell(verb, path, "", ignored);
}

} // namespace ptk
