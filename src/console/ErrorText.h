// What the numbers mean that the program's objects leave behind, in words for a terminal. The windows have texts of their own.
#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <string>

namespace ptk {

// A failure of this number with its text and, where given, what it is about and why ("...: Ann Lee: the disk is full").
[[nodiscard]] Failure ProgramFailure(std::int32_t number, const std::string& subject = "", const std::string& reason = "");

// A failure of the database file or of its opening, with its number and text and, where the text does not name it, the database.
[[nodiscard]] Failure FileFailure(const Failure& reason, const std::string& path);

} // namespace ptk
