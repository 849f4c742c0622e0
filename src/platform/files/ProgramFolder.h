// Where the program lives and how its paths turn into the platform's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ptk {

inline constexpr const char* kConfigurationFile = R"(\system\ptk_11.cfg)"; // below the program folder

struct ProgramFolder
{
    std::string path;   // holds system/, reports/ and documentation/; absolute, without a trailing separator
    bool named = false; // by the user at this start or by where the program lies; else it is the user's own and may not be there yet
};

// `option` when not empty, else the environment variable PTK_PROGRAM_FOLDER when set and not empty, else the folder of the executable when
// it holds the configuration file, else the folder that was remembered, else UserFolder().
[[nodiscard]] ProgramFolder FindProgramFolder(const std::string& option);

// "ptk-admin" in the user's folder for data: $XDG_DATA_HOME, else ~/.local/share.
[[nodiscard]] std::string UserFolder();

// For the starts to come, of this user: in $XDG_CONFIG_HOME, else ~/.config. Raises what writing a file raises.
void RememberProgramFolder(const std::string& folder);

// Whether it holds the configuration file.
[[nodiscard]] bool HoldsConfiguration(const std::string& folder);

// A file of the installed package's own, beside the executable's folder: "<prefix>/share/NAME". It need not be there.
[[nodiscard]] std::filesystem::path InstalledFile(std::string_view name);

// A program that is started by this one: beside the executable, else in the package's folder for such, "<prefix>/libexec/ptk/NAME". It need
// not be there.
[[nodiscard]] std::filesystem::path HelperProgram(std::string_view name);

// Configuration and texts keep backslashes as written ("<folder>\system\ptk_11.mdb"); only where a file is opened do they become the
// platform's own separators.
[[nodiscard]] std::filesystem::path NativePath(std::string_view path);

} // namespace ptk
