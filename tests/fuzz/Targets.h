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

// Runs the action, which may raise a Failure. Anything else that it raises is a fault.
template <typename Action>
void MayFail(const Action& action)
{
    try {
        action();
    } catch (const Failure&) { // the input is refused
    }
}

// Writes the bytes into a file of this process's own, for targets that read a file, and answers its path.
inline std::string InFile(std::string_view bytes)
{
    static const std::string path = (std::filesystem::temp_directory_path() / ("fuzz." + std::to_string(::getpid()))).string();
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

// Changes a file that is too large to be the input itself. Each patch is an offset of three bytes, low byte first, a count of one byte, and
// as many bytes to write; a count of 0 cuts the file at the offset.
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
