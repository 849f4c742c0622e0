// What the numbers mean that the program's objects leave behind, in words for a terminal. The windows have texts of their own.
#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <string>

namespace ptk {

// A failure of this number with its text and, where given, what it is about ("...: Ann Lee").
Failure ProgramFailure(std::int32_t number, const std::string& subject = "");

// The same for a number left by opening the database: one of ours (403) or the engine's own.
Failure OpenFailure(std::int32_t number, const std::string& databasePath);

} // namespace ptk
