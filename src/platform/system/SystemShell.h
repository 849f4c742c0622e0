// Hands documents to the desktop's opener and to the print spooler.
#pragma once

#include "platform/GoesOn.h"
#include "platform/system/Desktop.h"

#include <cstdint>
#include <string>

namespace ptk {

// Opens a document with `xdg-open`, waiting up to a second for its refusal (no program for it), or prints one with `lp`, under the title
// where there is one, waiting up to five seconds for its refusal (no printer, no spooler) and up to five more to learn the reason.
// Returns the shell's codes: above ShellSuccess when taken over, ShellFileNotFound for a missing file, ShellNoProgram when the program is
// not there or refuses; `refusal` then says why, in words, and is empty otherwise. Path and title are passed as arguments, never through a
// command interpreter. `goesOn` is asked a hundred times a second meanwhile; false ends the wait: a document to be printed then counts as
// refused, one to be opened as taken over.
[[nodiscard]] std::int32_t RunSystemShell(ShellVerb verb, const std::string& path, const std::string& title, std::string& refusal,
                                          const GoesOn& goesOn = {});

// RunSystemShell for callers that need neither a title nor the reason of a refusal.
[[nodiscard]] inline std::int32_t RunSystemShell(ShellVerb verb, const std::string& path)
{
    std::string ignored;
    return RunSystemShell(verb, path, "", ignored);
}

} // namespace ptk
