#include "platform/files/Folder.h"

#include "platform/Failure.h"

#include <dirent.h>

#include <cerrno>
#include <memory>
#include <string_view>

namespace ptk {

namespace {

struct Closing
{
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace

std::vector<std::string> NamesIn(const std::string& folder)
{
    const std::unique_ptr<DIR, Closing> open(::opendir(folder.c_str()));
    if (open == nullptr) {
        if (errno == ENOENT) {
            return {};
        }
        throw Failure::FromErrno(errno);
    }
    std::vector<std::string> names;
    errno = 0;
    while (const dirent* entry = ::readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            names.emplace_back(name);
        }
        errno = 0;
    }
    if (errno != 0) {
        throw Failure::FromErrno(errno);
    }
    return names;
}

} // namespace ptk
