#include "platform/files/FileDraft.h"
#include "platform/files/Folder.h"
#include "platform/Succeeds.h"
#include "platform/Waiting.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ptk {

namespace {

using std::filesystem::path;

constexpr std::string_view kRandom = "XXXXXX"; // becomes random characters
constexpr std::string_view kEnding = ".draft";
constexpr int kMostTries = 16; // two programs may remove each other's new draft once or twice; more often only where locks do not work
constexpr auto kNotYetSafe = "The file is done, but may not survive a power cut: ";
constexpr mode_t kModeBits = S_IRWXU | S_IRWXG | S_IRWXO;

path FolderOf(const path& target)
{
    return target.has_parent_path() ? target.parent_path() : path(".");
}

// The name is hidden, so that nobody takes a draft for a report.
std::string DraftStart(const path& target)
{
    return "." + target.filename().string() + ".";
}

// Opens the folder before anything is made in it: where the folder cannot be flushed, no file shall appear.
SystemFile OpenFolder(const path& folder)
{
    SystemFile file(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.Descriptor() < 0) {
        throw errno == ENOENT || errno == ENOTDIR ? Failure(failure::PathNotFound) : Failure::FromErrno(errno);
    }
    return file;
}

// Flushes the folder after the file has its name; the failure says that the file is done.
void FlushFolder(SystemFile& folder)
{
    int error = 0;
    waiting::Behind([&] { error = ::fsync(folder.Descriptor()) == 0 ? 0 : errno; });
    if (error != 0 && error != EINVAL) { // EINVAL: this file system has no flush for folders
        const Failure reason = Failure::FromErrno(error);
        throw Failure(reason.Number(), reason.Source(), kNotYetSafe + reason.Description(), reason.LastSystemError());
    }
}

// Refuses a target that may not be written, although its folder would allow to replace it.
void RequireReplaceable(const std::string& target)
{
    struct stat status
    {
    };
    if (::stat(target.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        throw Failure(failure::PathFileAccess);
    }
    const bool isFile = ::lstat(target.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    if (isFile && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        throw Failure::FromErrno(errno);
    }
}

// Locks the first byte, which no database engine locks, for as long as the process works on the draft. False when another process holds the
// lock, or where the file system knows no such locks: there nobody ever holds one.
bool Lock(const SystemFile& file)
{
    struct flock first
    {
    };
    first.l_type = F_WRLCK;
    first.l_whence = SEEK_SET;
    first.l_len = 1;
    return ::fcntl(file.Descriptor(), F_OFD_SETLK, &first) == 0;
}

// Whether the draft is gone already or no process holds it.
bool IsAbandoned(const path& draft)
{
    const SystemFile file(::open(draft.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.Descriptor() < 0) {
        return errno == ENOENT;
    }
    struct stat status
    {
    };
    return ::fstat(file.Descriptor(), &status) == 0 && S_ISREG(status.st_mode) && Lock(file);
}

// The name of the draft that a file is or belongs to (endings behind it stand for what an engine keeps there, such as its journal); else
// empty.
std::string_view DraftOf(std::string_view name)
{
    const std::size_t ending = name.rfind(kEnding);
    const std::size_t random = ending - kRandom.size();
    const bool isDraft = ending != std::string_view::npos && ending > kRandom.size() + 2 && name.front() == '.' && name[random - 1] == '.';
    return isDraft ? name.substr(0, ending + kEnding.size()) : std::string_view();
}

// The target's name, taken from a draft's name.
std::string_view TargetOf(std::string_view draft)
{
    return draft.substr(1, draft.size() - 2 - kRandom.size() - kEnding.size());
}

bool Holds(const std::string& path, std::string_view bytes)
{
    try {
        SystemFile file = OpenRegularFile(path, O_RDONLY);
        std::string content(bytes.size() + 1, '\0'); // one more, to meet the end
        std::size_t size = 0;
        while (const std::size_t count = file.Read(content.data() + size, content.size() - size)) {
            size += count;
        }
        return std::string_view(content).substr(0, size) == bytes;
    } catch (const Failure&) {
        return false; // what cannot be read is to be written, and that tells why it cannot
    }
}

} // namespace

void RemoveAbandonedDrafts(const std::string& folder, const IsOurDraft& isOurs)
{
    std::vector<std::string> names;
    static_cast<void>(Succeeds([&] { names = NamesIn(folder); })); // what cannot be seen cannot be cleared away
    for (const std::string& name : names) {
        const std::string_view draft = DraftOf(name);
        if (draft.empty()) {
            continue;
        }
        const path whole = path(folder) / draft;
        if (isOurs(std::string(TargetOf(draft)), whole.string()) && IsAbandoned(whole)) {
            ::unlink((path(folder) / name).c_str());
        }
    }
}

FileDraft::FileDraft(std::string target) : m_target(std::move(target)), m_folder(OpenFolder(FolderOf(m_target)))
{
    RequireReplaceable(m_target);
    const std::string name = path(m_target).filename().string();
    RemoveAbandonedDrafts(FolderOf(m_target).string(), [&](const std::string& of, const std::string& /*draft*/) { return of == name; });
    Create();
    for (int tries = 1; !Hold(); ++tries) {
        ::unlink(m_path.c_str());
        if (tries == kMostTries) {
            throw Failure(failure::PermissionDenied);
        }
        Create();
    }
    m_mortal.emplace(m_path);
}

FileDraft::~FileDraft()
{
    if (!m_placed) {
        ::unlink(m_path.c_str());
    }
}

void FileDraft::Create()
{
    m_path = (FolderOf(m_target) / DraftStart(m_target).append(kRandom).append(kEnding)).string();
    m_file = SystemFile(::mkostemps(m_path.data(), static_cast<int>(kEnding.size()), O_CLOEXEC));
    if (m_file.Descriptor() < 0) {
        throw Failure::FromErrno(errno);
    }
    static_cast<void>(::fchmod(m_file.Descriptor(), kOwnerOnly)); // an odd umask can only have taken rights of the owner
}

// Locks the new draft. False when another program took it for an abandoned one before it was locked.
bool FileDraft::Hold()
{
    struct stat status
    {
    };
    if (!Lock(m_file) && (errno == EAGAIN || errno == EACCES)) {
        return false;
    }
    return ::fstat(m_file.Descriptor(), &status) != 0 || status.st_nlink > 0;
}

void FileDraft::Replace()
{
    m_file.Flush();
    HandDownMode();
    if (::rename(m_path.c_str(), m_target.c_str()) != 0) {
        throw Failure::FromErrno(errno);
    }
    m_placed = true;
    FlushFolder(m_folder);
}

// Gives the draft the owner, group and mode of the file that it replaces, if this user or the folder's owner owns that file: anybody else
// could have put it there to read what replaces it.
void FileDraft::HandDownMode()
{
    struct stat old
    {
    };
    struct stat folder
    {
    };
    if (::lstat(m_target.c_str(), &old) != 0 || !S_ISREG(old.st_mode) || old.st_nlink != 1 ||
        ::fstat(m_folder.Descriptor(), &folder) != 0) {
        return;
    }
    const bool isOurs = old.st_uid == ::geteuid() || old.st_uid == folder.st_uid;
    if (isOurs && ::fchown(m_file.Descriptor(), old.st_uid, old.st_gid) == 0) {
        static_cast<void>(::fchmod(m_file.Descriptor(), old.st_mode & kModeBits));
    }
}

void FileDraft::PlaceNew()
{
    if (!PlaceAs(m_target)) {
        throw AlreadyThere(m_target);
    }
}

bool FileDraft::PlaceAs(const std::string& target)
{
    m_target = target;
    m_file.Flush();
    if (!RenameToFree()) {
        if (errno == EEXIST) {
            return false;
        }
        throw Failure::FromErrno(errno);
    }
    m_placed = true;
    FlushFolder(m_folder);
    return true;
}

// Gives the draft the target's name if it is free. Network file systems cannot rename so: there it gets a second name and loses the first.
bool FileDraft::RenameToFree() const
{
    if (::renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, m_target.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    return errno == EINVAL && ::link(m_path.c_str(), m_target.c_str()) == 0 && ::unlink(m_path.c_str()) == 0;
}

Failure FileDraft::AlreadyThere(const std::string& target)
{
    return {failure::PathFileAccess, "PTK", "There is already a file " + target + "."};
}

namespace {

// The path that a link leads to, so that the link stays. Some links lead to no file at all, such as that of a standard output to a pipe.
std::string BehindLinks(const std::string& path)
{
    std::error_code error;
    if (!std::filesystem::is_symlink(path, error)) {
        return path;
    }
    const auto target = std::filesystem::weakly_canonical(path, error);
    if (error) {
        throw Failure(failure::PathFileAccess, "PTK", "The path leads to no file: " + path);
    }
    return target.string();
}

} // namespace

bool PutFile(const std::string& path, std::string_view bytes)
{
    if (Holds(path, bytes)) {
        return false;
    }
    FileDraft draft(BehindLinks(path));
    draft.File().Write(bytes);
    draft.Replace();
    return true;
}

} // namespace ptk
