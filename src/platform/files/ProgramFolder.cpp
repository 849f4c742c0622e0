#include "platform/files/ProgramFolder.h"

#include "platform/files/FileDraft.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <pwd.h>
#include <unistd.h>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr const char* kEnvironmentVariable = "PTK_PROGRAM_FOLDER";
constexpr const char* kName = "ptk-admin";
constexpr const char* kRemembered = "program-folder";

std::string Variable(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

std::string WithoutTrailingSeparator(const fs::path& folder)
{
    std::string text = fs::absolute(folder).lexically_normal().string();
    while (text.size() > 1 && text.back() == '/') {
        text.pop_back();
    }
    return text;
}

fs::path ExecutableFolder()
{
    return fs::read_symlink("/proc/self/exe").parent_path();
}

fs::path Home()
{
    if (const std::string home = Variable("HOME"); !home.empty()) {
        return home;
    }
    const passwd* const user = ::getpwuid(::getuid());
    return user == nullptr ? "/" : user->pw_dir;
}

// The program's folder below the one that the variable names. A relative path in the variable is ignored, by the rules of the desktops.
fs::path UsersFolder(const char* variable, const char* belowHome)
{
    const fs::path folder = Variable(variable);
    return (folder.is_absolute() ? folder : Home() / belowHome) / kName;
}

fs::path RememberedFile()
{
    return UsersFolder("XDG_CONFIG_HOME", ".config") / kRemembered;
}

std::string RememberedFolder()
{
    std::string folder;
    std::getline(std::ifstream(RememberedFile()), folder);
    return folder;
}

} // namespace

ProgramFolder FindProgramFolder(const std::string& option)
{
    for (const std::string& named : {option, Variable(kEnvironmentVariable)}) {
        if (!named.empty()) {
            return {WithoutTrailingSeparator(named), true};
        }
    }
    const std::string own = WithoutTrailingSeparator(ExecutableFolder());
    if (HoldsConfiguration(own)) {
        return {own, true};
    }
    const std::string remembered = RememberedFolder();
    return {remembered.empty() ? UserFolder() : WithoutTrailingSeparator(remembered), false};
}

std::string UserFolder()
{
    return WithoutTrailingSeparator(UsersFolder("XDG_DATA_HOME", ".local/share"));
}

void RememberProgramFolder(const std::string& folder)
{
    std::error_code ignored; // the write below fails then and tells why
    fs::create_directories(RememberedFile().parent_path(), ignored);
    PutFile(RememberedFile().string(), folder + '\n');
}

bool HoldsConfiguration(const std::string& folder)
{
    std::error_code error;
    return fs::exists(NativePath(folder + kConfigurationFile), error);
}

fs::path InstalledFile(std::string_view name)
{
    return (ExecutableFolder() / ".." / "share" / name).lexically_normal();
}

fs::path HelperProgram(std::string_view name)
{
    std::error_code error;
    const fs::path beside = ExecutableFolder() / name;
    return fs::exists(beside, error) ? beside : (ExecutableFolder() / ".." / "libexec" / "ptk" / name).lexically_normal();
}

fs::path NativePath(std::string_view path)
{
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

} // namespace ptk
