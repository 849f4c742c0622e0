// What the fuzz targets share.
#pragma once

#include "platform/Failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

#include <unistd.h>

namespace ptk {

inline void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

inline std::string_view TextIn(std::span<const std::uint8_t> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Raising a failure is an answer, too; anything else that is raised is a fault.
template <typename Action>
void MayFail(const Action& action)
{
    try {
        action();
    } catch (const Failure&) { // what it was about is refused
    }
}

// A file of this process's own, for targets that read one.
inline std::string InFile(std::string_view bytes)
{
    static const std::string path = (std::filesystem::temp_directory_path() / ("fuzz." + std::to_string(::getpid()))).string();
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

// Files too large to be changed whole are changed by patches: an offset of three bytes, how many bytes, and these; none cuts the file
// there.
inline std::string Patched(std::string file, std::span<const std::uint8_t> patches)
{
    constexpr std::size_t kHead = 4;
    while (patches.size() >= kHead && !file.empty()) {
        const std::size_t at = (patches[0] + 0x100U * patches[1] + 0x10000U * patches[2]) % file.size();
        const std::size_t count = std::min<std::size_t>({patches[3], patches.size() - kHead, file.size() - at});
        if (patches[3] == 0) {
            file.resize(at);
        } else {
            std::copy_n(patches.begin() + kHead, count, file.begin() + static_cast<std::ptrdiff_t>(at));
        }
        patches = patches.subspan(kHead + std::min<std::size_t>(patches[3], patches.size() - kHead));
    }
    return file;
}

} // namespace ptk
