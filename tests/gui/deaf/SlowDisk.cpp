// The functions below stand in front of the C library's for everything in this program, the database engine included.
#include "gui/deaf/SlowDisk.h"

#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <thread>

namespace {

constexpr std::chrono::milliseconds kFlush(300);
constexpr std::chrono::milliseconds kRead(20);

std::atomic<bool> isSlow{false};

void Take(std::chrono::milliseconds time)
{
    if (isSlow) {
        std::this_thread::sleep_for(time);
    }
}

template <typename Function>
Function Real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

namespace ptk {

SlowDisk::SlowDisk()
{
    isSlow = true;
}

SlowDisk::~SlowDisk()
{
    isSlow = false;
}

} // namespace ptk

#define REAL(name) Real(&(name), #name) // NOLINT(cppcoreguidelines-macro-usage): a name is looked up by its text

extern "C" {

int fsync(int file)
{
    Take(kFlush);
    return REAL(fsync)(file);
}

int fdatasync(int file)
{
    Take(kFlush);
    return REAL(fdatasync)(file);
}

ssize_t pread(int file, void* bytes, std::size_t size, off_t at)
{
    Take(kRead);
    return REAL(pread)(file, bytes, size, at);
}

ssize_t pread64(int file, void* bytes, std::size_t size, off64_t at)
{
    Take(kRead);
    return REAL(pread64)(file, bytes, size, at);
}
}
