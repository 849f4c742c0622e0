// The functions below stand in front of the C library's for everything in this program, the database engine included.
#include "crash/WriteCalls.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<int> callsLeft{0}; // 0: nothing is counted; counts down to 1
std::atomic<bool> met{false};
ptk::Misfortune misfortune = ptk::Misfortune::Killed;

template <typename Function>
Function Real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool IsDue()
{
    if (callsLeft == 0 || misfortune >= ptk::Misfortune::FolderUnsafe) {
        return false;
    }
    if (callsLeft > 1) {
        --callsLeft;
        return false;
    }
    met = true;
    return true;
}

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    _exit(1);
}

// Whether the call fails for want of room; does not return where the process is to end.
bool Happens(bool needsRoom)
{
    if (!IsDue()) {
        return false;
    }
    if (misfortune != ptk::Misfortune::DiskFull) {
        Die();
    }
    errno = ENOSPC;
    return needsRoom;
}

// Whether a call of that kind fails.
bool Fails(ptk::Misfortune kind, int error)
{
    if (callsLeft == 0 || misfortune != kind) {
        return false;
    }
    met = true;
    errno = error;
    return true;
}

bool IsFolder(int file)
{
    struct stat status
    {
    };
    return fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

bool FolderFails(int file)
{
    return IsFolder(file) && Fails(ptk::Misfortune::FolderUnsafe, EIO);
}

template <typename Write>
ssize_t WriteOrNot(std::size_t size, Write write)
{
    if (!IsDue()) {
        return write(size);
    }
    if (misfortune == ptk::Misfortune::DiskFull) {
        errno = ENOSPC;
        return -1;
    }
    if (misfortune == ptk::Misfortune::KilledHalf) {
        write(size / 2);
    }
    Die();
}

} // namespace

namespace ptk {

void MeetMisfortune(Misfortune kind, int call)
{
    misfortune = kind;
    met = false;
    callsLeft = call;
}

bool MisfortuneMet()
{
    return met;
}

} // namespace ptk

#define REAL(name) Real(&(name), #name) // NOLINT(cppcoreguidelines-macro-usage): a name is looked up by its text

extern "C" {

ssize_t write(int file, const void* bytes, std::size_t size)
{
    return WriteOrNot(size, [&](std::size_t count) { return REAL(write)(file, bytes, count); });
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t at)
{
    return WriteOrNot(size, [&](std::size_t count) { return REAL(pwrite)(file, bytes, count, at); });
}

ssize_t pwrite64(int file, const void* bytes, std::size_t size, off64_t at)
{
    return WriteOrNot(size, [&](std::size_t count) { return REAL(pwrite64)(file, bytes, count, at); });
}

int ftruncate(int file, off_t size) noexcept
{
    return Happens(false) ? -1 : REAL(ftruncate)(file, size);
}

int ftruncate64(int file, off64_t size) noexcept
{
    return Happens(false) ? -1 : REAL(ftruncate64)(file, size);
}

int fsync(int file)
{
    return Happens(true) || FolderFails(file) ? -1 : REAL(fsync)(file);
}

int fdatasync(int file)
{
    return Happens(true) || FolderFails(file) ? -1 : REAL(fdatasync)(file);
}

int rename(const char* from, const char* to) noexcept
{
    return Happens(true) ? -1 : REAL(rename)(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned int flags) noexcept
{
    return Happens(true) ? -1 : REAL(renameat2)(fromFolder, from, toFolder, to, flags);
}

int unlink(const char* path) noexcept
{
    return Happens(false) ? -1 : REAL(unlink)(path);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return Happens(true) ? -1 : REAL(mkdir)(path, mode);
}

int fcntl(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return command == F_OFD_SETLK && Fails(ptk::Misfortune::NoLocks, EACCES) ? -1 : REAL(fcntl)(file, command, argument);
}

int execve(const char* program, char* const* arguments, char* const* environment) noexcept
{
    return Fails(ptk::Misfortune::NothingRuns, ENOEXEC) ? -1 : REAL(execve)(program, arguments, environment);
}
}
