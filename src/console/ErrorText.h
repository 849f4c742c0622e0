// The meaning of the program's error numbers in words for a terminal. The windows have texts of their own.
#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <string>

namespace ptk {

// A failure with this number, its text and, where given, what it is about and why ("...: Ann Lee: the disk is full").
[[nodiscard]] Failure ProgramFailure(std::int32_t number, const std::string& subject = "", const std::string& reason = "");

// A failure with the number and text of `reason`. Where the text does not name the database or file at `path`, that is added.
[[nodiscard]] Failure FileFailure(const Failure& reason, const std::string& path);

} // namespace ptk
