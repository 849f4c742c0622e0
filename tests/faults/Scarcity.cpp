// The functions below stand in front of the C and C++ libraries' for everything in this program.
#include "faults/Scarcity.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <new>

namespace {

using ptk::Scarce;

std::atomic<std::int64_t> s_left{0}; // calls until the one that fails; 0: nothing fails
std::int64_t s_wanted = 0;
std::int64_t s_seen = 0;
std::atomic<bool> s_all{false};
std::atomic<bool> s_met{false};
Scarce s_what = Scarce::Memory;
sqlite3_mem_methods s_engine; // the engine's own

bool Fails(Scarce what)
{
    if (s_left == 0 || what != s_what) {
        return false;
    }
    if (s_left > 1) {
        --s_left;
        return false;
    }
    s_met = true;
    if (!s_all) {
        s_left = 0;
    }
    return true;
}

// -1 with that error; else nothing happened.
bool Fails(Scarce what, int error)
{
    if (!Fails(what)) {
        return false;
    }
    errno = error;
    return true;
}

template <typename Function>
Function Real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void* New(std::size_t size)
{
    void* const memory = Fails(Scarce::Memory) ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

bool EngineFails()
{
    return Fails(Scarce::Memory) || Fails(Scarce::EngineMemory);
}

void* EngineMalloc(int size)
{
    return EngineFails() ? nullptr : s_engine.xMalloc(size);
}

void* EngineRealloc(void* memory, int size)
{
    return EngineFails() ? nullptr : s_engine.xRealloc(memory, size);
}

template <typename Read>
ssize_t ReadOrNot(std::size_t size, Read read)
{
    if (Fails(Scarce::Read, EIO) || Fails(Scarce::Interrupted, EINTR)) {
        return -1;
    }
    return read(size > 1 && Fails(Scarce::ShortRead) ? 1 : size);
}

bool OpenFails()
{
    return Fails(Scarce::Open, ENFILE) || Fails(Scarce::Forbidden, EACCES);
}

// Where no lock can be taken any more, those that there are can still be given back.
bool LockFails(int command, const void* argument)
{
    if (command != F_SETLK && command != F_OFD_SETLK) {
        return false;
    }
    const bool gives = static_cast<const struct flock*>(argument)->l_type == F_UNLCK;
    return !(gives && s_all) && Fails(Scarce::Lock, EIO);
}

} // namespace

namespace ptk {

void WatchMemoryOfEngine()
{
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &s_engine);
    sqlite3_mem_methods watched = s_engine;
    watched.xMalloc = EngineMalloc;
    watched.xRealloc = EngineRealloc;
    sqlite3_config(SQLITE_CONFIG_MALLOC, &watched);
}

void RunOut(Scarce what, std::int64_t call, bool all)
{
    s_what = what;
    s_all = all;
    s_met = false;
    s_wanted = call;
    s_left = call;
}

void Plenty()
{
    s_seen = s_wanted - s_left;
    s_left = 0;
}

std::int64_t CallsSeen()
{
    return s_seen;
}

bool HasRunOut()
{
    return s_met;
}

} // namespace ptk

void* operator new(std::size_t size)
{
    return New(size);
}

void* operator new[](std::size_t size)
{
    return New(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept
{
    return Fails(Scarce::Memory) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

#define REAL(name) Real(&(name), #name) // NOLINT(cppcoreguidelines-macro-usage): a name is looked up by its text

extern "C" {

ssize_t read(int file, void* bytes, std::size_t size)
{
    return ReadOrNot(size, [&](std::size_t count) { return REAL(read)(file, bytes, count); });
}

ssize_t pread(int file, void* bytes, std::size_t size, off_t at)
{
    return ReadOrNot(size, [&](std::size_t count) { return REAL(pread)(file, bytes, count, at); });
}

ssize_t pread64(int file, void* bytes, std::size_t size, off64_t at)
{
    return ReadOrNot(size, [&](std::size_t count) { return REAL(pread64)(file, bytes, count, at); });
}

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return OpenFails() ? -1 : REAL(open)(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return OpenFails() ? -1 : REAL(open64)(path, flags, mode);
}

FILE* fopen(const char* path, const char* mode)
{
    return OpenFails() ? nullptr : REAL(fopen)(path, mode);
}

FILE* fopen64(const char* path, const char* mode)
{
    return OpenFails() ? nullptr : REAL(fopen64)(path, mode);
}

int fcntl(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return LockFails(command, argument) ? -1 : REAL(fcntl)(file, command, argument);
}

int fcntl64(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return LockFails(command, argument) ? -1 : REAL(fcntl64)(file, command, argument);
}

int stat(const char* path, struct stat* status) noexcept
{
    return Fails(Scarce::Look, EIO) ? -1 : REAL(stat)(path, status);
}

int fstat(int file, struct stat* status) noexcept
{
    return Fails(Scarce::Look, EIO) ? -1 : REAL(fstat)(file, status);
}

int stat64(const char* path, struct stat64* status) noexcept
{
    return Fails(Scarce::Look, EIO) ? -1 : REAL(stat64)(path, status);
}

int fstat64(int file, struct stat64* status) noexcept
{
    return Fails(Scarce::Look, EIO) ? -1 : REAL(fstat64)(file, status);
}
}
