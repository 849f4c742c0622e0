#include "platform/files/SystemFile.h"

#include "platform/Failure.h"
#include "platform/Waiting.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ptk {

namespace {

// Flags of every open: without O_NONBLOCK a pipe that nobody reads would hold the program until somebody does.
constexpr int kAlways = O_NONBLOCK | O_CLOEXEC;

int OpenOrCreate(const std::filesystem::path& path, int flags)
{
    const int existing = ::open(path.c_str(), (flags & ~O_CREAT) | kAlways);
    if (existing >= 0 || errno != ENOENT || (flags & O_CREAT) == 0) {
        return existing;
    }
    const int made = ::open(path.c_str(), flags | kAlways, kOwnerOnly);
    if (made >= 0) {
        static_cast<void>(::fchmod(made, kOwnerOnly)); // an odd umask can only have taken rights of the owner
    }
    return made;
}

// The failure of an open. Where the path's folder is missing, it says so instead of a missing file.
Failure OpenFailure(int error, const std::filesystem::path& path)
{
    std::error_code ignored;
    const auto folder = path.parent_path();
    if (error == ENOENT && !folder.empty() && !std::filesystem::is_directory(folder, ignored)) {
        const Failure missing(failure::PathNotFound);
        return {missing.Number(), missing.Source(), missing.Description(), error};
    }
    return Failure::FromErrno(error);
}

} // namespace

SystemFile::~SystemFile()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

SystemFile::SystemFile(SystemFile&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

SystemFile& SystemFile::operator=(SystemFile&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

std::size_t SystemFile::Read(char* buffer, std::size_t size)
{
    ssize_t count = -1;
    do {
        count = ::read(m_descriptor, buffer, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        throw Failure::FromErrno(errno);
    }
    return static_cast<std::size_t>(count);
}

void SystemFile::Write(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(m_descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            throw Failure::FromErrno(errno);
        }
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        }
    }
}

void SystemFile::Flush()
{
    waiting::Behind([this] {
        if (::fsync(m_descriptor) != 0) {
            throw Failure::FromErrno(errno);
        }
    });
}

void SystemFile::Close()
{
    // The system gives up the descriptor also where it reports a failure, so a second try could close somebody else's file.
    if (::close(std::exchange(m_descriptor, -1)) != 0 && errno != EINTR) {
        throw Failure::FromErrno(errno);
    }
}

SystemFile OpenRegularFile(const std::filesystem::path& path, int flags)
{
    SystemFile file(OpenOrCreate(path, flags));
    if (file.Descriptor() < 0) {
        throw OpenFailure(errno, path);
    }
    struct stat status
    {
    };
    if (::fstat(file.Descriptor(), &status) != 0) {
        throw Failure::FromErrno(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        throw Failure(failure::PathFileAccess);
    }
    return file;
}

} // namespace ptk
