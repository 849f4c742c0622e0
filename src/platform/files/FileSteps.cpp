#include "platform/files/FileSteps.h"

#include "platform/files/FileDraft.h"
#include "platform/Waiting.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace ptk {

bool IsThere(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path, ignored));
}

void CopyBytes(const std::string& from, FileDraft& to)
{
    constexpr std::size_t kPortion = 1 << 20; // bytes
    SystemFile file = OpenRegularFile(from, O_RDONLY);
    std::string buffer(kPortion, '\0');
    while (const std::size_t size = file.Read(buffer.data(), buffer.size())) {
        to.File().Write(std::string_view(buffer).substr(0, size));
        static_cast<void>(waiting::GoOn()); // only lets the turn be taken: a copy is not given up
    }
}

void MakeOwnFolder(const std::string& folder)
{
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        throw errno == ENOENT || errno == ENOTDIR ? Failure(failure::PathNotFound) : Failure::FromErrno(errno);
    }
}

} // namespace ptk
