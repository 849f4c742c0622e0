// Whatever bytes the configuration file holds, it reads, and its lines and keys agree with each other.
#include "shell/CFileAdaptor.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace {

void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::string WrittenToFile(const std::uint8_t* data, std::size_t size)
{
    static const std::string path = (std::filesystem::temp_directory_path() / ("config_fuzz." + std::to_string(getpid()))).string();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    Require(file != nullptr);
    Require(std::fwrite(data, 1, size, file) == size);
    Require(std::fclose(file) == 0);
    return path;
}

void CheckLine(ptk::CFileAdaptor& config, std::int16_t position)
{
    const std::string line = config.GetLine(position);
    const std::string key = config.KeyString();
    const std::string value = config.KeyValue();
    Require(line != "EOF");
    if (line.find('=') == std::string::npos) {
        Require(key.empty() && value.empty());
        return;
    }
    Require(line == key + "=" + value);
    Require(config.FindLine(key) >= 1 && config.FindLine(key) <= position);
    config.FindKeyValue(key);
    Require(config.KeyString() == key);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::int16_t kEnoughLines = 64; // the look-ups of every line by every line would take too long
    const std::string path = WrittenToFile(data, size);
    ptk::CFileAdaptor config("");
    if (config.ReadFile(path)) {
        for (std::int16_t position = 1; position <= config.FileLineCount() && position <= kEnoughLines; ++position) {
            CheckLine(config, position);
        }
        Require(config.WriteFile(path));
    }
    std::filesystem::remove(path);
    return 0;
}
