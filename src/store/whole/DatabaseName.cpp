#include "store/whole/DatabaseName.h"

#include "platform/files/ProgramFolder.h"
#include "store/postgres/line/ServerAddress.h"

#include <filesystem>

namespace ptk {

bool IsFileName(std::string_view name)
{
    return !IsServerAddress(name);
}

std::string SaidDatabase(const std::string& name)
{
    return IsFileName(name) ? name : SaidServer(name);
}

std::string NativeName(const std::string& configured)
{
    return IsFileName(configured) ? NativePath(configured).string() : configured;
}

std::string AbsoluteName(const std::string& typed)
{
    return IsFileName(typed) ? std::filesystem::absolute(typed).string() : typed;
}

std::string DatabaseFolder(const std::string& name, const std::string& programFolder)
{
    return IsFileName(name) ? std::filesystem::path(name).parent_path().string() : programFolder;
}

} // namespace ptk
