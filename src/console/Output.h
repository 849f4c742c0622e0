// Where a command puts the bytes that it makes: a file that -o names, or what it writes to.
#pragma once

#include "reports/forms/ReportForms.h"

#include <optional>
#include <string>

namespace ptk {

struct Console;

inline constexpr auto kFromAfterTo = "--from is after --to"; // what is said of days that run backward

// What is wrong with the output that the arguments ask for, nullptr where nothing is: pages are nothing for a terminal, and -o needs a
// name.
[[nodiscard]] const char* WrongOutput(ReportForm form, const std::optional<std::string>& output, const Console& console);

// Writes the file whole, or not at all. A failure names it.
void WriteOutput(const std::string& path, const std::string& bytes);

// Writes the file, or where none is named to the console, texts made fit for a terminal.
void Deliver(ReportForm form, const std::optional<std::string>& output, const std::string& bytes, Console& console);

} // namespace ptk
