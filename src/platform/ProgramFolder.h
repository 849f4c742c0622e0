// Where the program lives and how its paths turn into the platform's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ptk {

// The folder that holds system/, reports/ and documentation/, without a trailing separator: `option` when not empty, else the environment
// variable PTK_PROGRAM_FOLDER when set and not empty, else the folder of the executable. Made absolute.
[[nodiscard]] std::string FindProgramFolder(const std::string& option);

// Configuration and texts keep backslashes as written ("<folder>\system\ptk_11.mdb"); only where a file is opened do they become the
// platform's own separators.
[[nodiscard]] std::filesystem::path NativePath(std::string_view path);

} // namespace ptk
