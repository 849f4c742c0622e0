// Removes unfinished files when a signal ends the process before their owners could remove them.
#pragma once

#include <string>

namespace ptk {

// While it lives, a signal that ends the process also removes the file `path` and what an engine keeps beside it. `path` must outlive it,
// unchanged. This holds for sixteen files at a time; any others are left for the next program that makes a file there.
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

// Removes the files of all MortalFile objects that live. A signal handler may call it.
void RemoveMortalFiles() noexcept;

// Lets SIGTERM, SIGHUP and SIGINT remove these files before they end the process; a signal that the process ignores or handles stays so.
void RemoveMortalFilesOnSignals();

} // namespace ptk
