// fuzz_replay TARGET FOLDER: runs a fuzz target once over every file of a corpus folder, as an ordinary test.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

// One function of each fuzz target's own name, which the build gives and lists.
#define TARGET(name) extern "C" int name(const std::uint8_t* data, std::size_t size);
PTK_FUZZ_TARGETS
#undef TARGET

int main(int argc, char** argv)
{
#define TARGET(name) {#name, name},
    const std::map<std::string, int (*)(const std::uint8_t*, std::size_t)> targets{PTK_FUZZ_TARGETS};
#undef TARGET
    if (argc != 3 || !targets.contains(argv[1])) {
        return 2;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
        std::ifstream file(entry.path(), std::ios::binary);
        std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        bytes.reserve(1); // no null pointer for an empty input
        targets.at(argv[1])(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
