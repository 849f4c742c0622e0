// Files in the making that go with a process which a signal ends, before their owners could take them away.
#pragma once

#include <string>

namespace ptk {

// While it lives, such an end removes the file, and what an engine keeps beside it. `path` outlives it, unchanged. Of the first sixteen at
// one time; further ones are left for the next program that makes a file there.
class MortalFile
{
public:
    explicit MortalFile(const std::string& path);
    ~MortalFile();
    MortalFile(const MortalFile&) = delete;
    MortalFile& operator=(const MortalFile&) = delete;

private:
    std::size_t m_place;
};

// May be called from a signal's handler.
void RemoveMortalFiles() noexcept;

// From here on SIGTERM, SIGHUP and SIGINT, where they would end the process, remove these files first.
void RemoveMortalFilesOnSignals();

} // namespace ptk
