#include "platform/files/DraftsAtEnd.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace ptk {

namespace {

constexpr std::size_t kMost = 16;
constexpr std::size_t kLongestPath = 4096; // bytes
constexpr const char* kBeside[] = {"", "-journal", "-wal", "-shm"};

// The paths, as texts that the files' owners keep: a signal handler may neither allocate nor wait for a lock.
std::array<std::atomic<const char*>, kMost> mortalFiles;

void RemoveWithBeside(const char* path)
{
    std::array<char, kLongestPath + 16> name{};
    const std::size_t length = std::strlen(path);
    if (length > kLongestPath) {
        return;
    }
    std::memcpy(name.data(), path, length);
    for (const char* ending : kBeside) {
        std::memcpy(name.data() + length, ending, std::strlen(ending) + 1);
        ::unlink(name.data());
    }
}

// Handles a signal: removes the files, then lets the signal come again, which now ends the process as its sender meant.
void EndWithoutThem(int signal)
{
    RemoveRemovedOnSignals();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

RemovedOnSignal::RemovedOnSignal(const std::string& path) : m_place(0)
{
    const char* none = nullptr;
    while (m_place < kMost && !mortalFiles[m_place].compare_exchange_strong(none, path.c_str())) {
        none = nullptr;
        ++m_place;
    }
}

RemovedOnSignal::~RemovedOnSignal()
{
    if (m_place < kMost) {
        mortalFiles[m_place] = nullptr;
    }
}

void RemoveRemovedOnSignals() noexcept
{
    for (const auto& path : mortalFiles) {
        if (const char* present = path) {
            RemoveWithBeside(present);
        }
    }
}

void RemoveRemovedOnSignalsOnSignals()
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        struct sigaction present
        {
        };
        if (::sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_DFL) { // one ignored by nohup stays ignored
            std::signal(signal, EndWithoutThem);
        }
    }
}

} // namespace ptk
