#include "platform/ProgramFolder.h"

#include <algorithm>
#include <cstdlib>

namespace ptk {

namespace {

constexpr const char* kEnvironmentVariable = "PTK_PROGRAM_FOLDER";

std::string WithoutTrailingSeparator(const std::filesystem::path& folder)
{
    std::string text = std::filesystem::absolute(folder).lexically_normal().string();
    while (text.size() > 1 && text.back() == '/') {
        text.pop_back();
    }
    return text;
}

} // namespace

std::string FindProgramFolder(const std::string& option)
{
    if (!option.empty()) {
        return WithoutTrailingSeparator(option);
    }
    if (const char* variable = std::getenv(kEnvironmentVariable); variable != nullptr && *variable != '\0') {
        return WithoutTrailingSeparator(variable);
    }
    return WithoutTrailingSeparator(std::filesystem::read_symlink("/proc/self/exe").parent_path());
}

std::filesystem::path NativePath(std::string_view path)
{
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

} // namespace ptk
