// Where the program's folder is, and how configured paths become the platform's.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace ptk {

inline constexpr const char* kConfigurationFile = R"(\system\ptk_11.cfg)"; // below the program folder

struct ProgramFolder
{
    std::string path;   // holds system/, reports/ and documentation/; absolute, without a trailing separator
    bool named = false; // by the user at this start, or the program lies in it; else it may not be there yet
};

// The program folder: `option` when not empty, else the environment variable PTK_PROGRAM_FOLDER when set and not empty, else the folder of
// the executable when it holds the configuration file, else the folder that was remembered, else UserFolder().
[[nodiscard]] ProgramFolder FindProgramFolder(const std::string& option);

// "ptk-admin" in the user's folder for data: $XDG_DATA_HOME, else ~/.local/share.
[[nodiscard]] std::string UserFolder();

// Remembers the folder for this user's later starts, in $XDG_CONFIG_HOME, else ~/.config. Raises what writing a file raises.
void RememberProgramFolder(const std::string& folder);

// Whether the folder holds the configuration file.
[[nodiscard]] bool HoldsConfiguration(const std::string& folder);

// The path of a file of the installed package, beside the executable's folder: "<prefix>/share/NAME". The file need not be there.
[[nodiscard]] std::filesystem::path InstalledFile(std::string_view name);

// The path of a program that this one starts: beside the executable, else "<prefix>/libexec/ptk/NAME". The program need not be there.
[[nodiscard]] std::filesystem::path HelperProgram(std::string_view name);

// A path in the platform's own form, for opening files. Configuration and texts keep backslashes as written ("<folder>\system\ptk_11.mdb").
[[nodiscard]] std::filesystem::path NativePath(std::string_view path);

} // namespace ptk
