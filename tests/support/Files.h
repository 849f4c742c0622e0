// Reads and writes whole files as bytes. Paths may have backslashes, as the configuration's have.
#pragma once

#include "platform/files/ProgramFolder.h"

#include <fstream>
#include <iterator>
#include <string>

namespace ptk {

inline std::string ReadBytes(const std::string& path)
{
    std::ifstream file(NativePath(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream file(NativePath(path), std::ios::binary);
    file << bytes;
}

} // namespace ptk
