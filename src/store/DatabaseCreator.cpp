#include "store/DatabaseCreator.h"

#include "platform/Failure.h"
#include "store/BulkWriter.h"
#include "store/engine/Engine.h"
#include "store/Schema.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace ptk {

namespace {

constexpr const char* kDraftMark = ".draft-";
constexpr std::size_t kDraftLetters = 6;

Failure AtPath(int error, const std::string& path)
{
    const Failure failure = error == ENOENT ? Failure(failure::PathNotFound) : Failure::FromErrno(error);
    return {failure.Number(), failure.Source(), failure.Description() + ": " + path, error};
}

Failure InTheWay(const std::string& text)
{
    return {failure::PathFileAccess, "PTK", text};
}

// A file descriptor's owner.
class Handle
{
public:
    explicit Handle(int number) : m_number(number) {}
    ~Handle()
    {
        if (m_number != -1) {
            close(m_number);
        }
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    int Number() const { return m_number; }

private:
    int m_number;
};

// A file of a name of its own beside the one to be, gone again unless it got that one's name. Its lock tells that somebody works on it.
class Draft
{
public:
    explicit Draft(const std::string& path)
        : m_path(path + kDraftMark + std::string(kDraftLetters, 'X')), m_file(mkostemp(m_path.data(), O_CLOEXEC)) // for its owner's eyes only
    {
        if (m_file.Number() == -1) {
            throw AtPath(errno, path);
        }
        flock(m_file.Number(), LOCK_EX | LOCK_NB); // where there are no such locks, nobody clears anything either
    }
    ~Draft()
    {
        if (!m_published) {
            Remove(m_path);
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    const std::string& Path() const { return m_path; }

    // Complete and on disk under its name for good, or gone.
    void Publish(const std::string& path)
    {
        const Handle folder(open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (folder.Number() == -1 || fsync(m_file.Number()) != 0) {
            throw AtPath(errno, path);
        }
        if (!Rename(path)) {
            throw errno == EEXIST ? AlreadyThere(path) : AtPath(errno, path);
        }
        m_published = true;
        if (fsync(folder.Number()) != 0) {
            const int error = errno;
            unlink(path.c_str());
            throw AtPath(error, path);
        }
    }

    static void Remove(const std::string& draft)
    {
        unlink((draft + "-journal").c_str());
        unlink(draft.c_str());
    }

    static Failure AlreadyThere(const std::string& path) { return InTheWay("There is already a file " + path + "."); }

    static std::string FolderOf(const std::string& path) { return std::filesystem::absolute(path).parent_path(); }

private:
    // Never over another file. Network file systems know only the way by a second name.
    bool Rename(const std::string& path) const
    {
        if (renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
            return true;
        }
        return errno == EINVAL && link(m_path.c_str(), path.c_str()) == 0 && unlink(m_path.c_str()) == 0;
    }

    std::string m_path;
    Handle m_file;
    bool m_published = false;
};

// Of a process that was killed over it: nobody has it locked any more.
void ClearWhenAbandoned(const std::string& draft)
{
    const Handle file(open(draft.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (file.Number() != -1 && flock(file.Number(), LOCK_EX | LOCK_NB) == 0) {
        Draft::Remove(draft);
    }
}

// Whatever cannot be looked through or removed stays: it is in nobody's way.
void ClearAbandonedDrafts(const std::string& path)
{
    const std::string beginning = std::filesystem::path(path).filename().string() + kDraftMark;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(Draft::FolderOf(path), error), end; !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename();
        if (name.starts_with(beginning) && name.size() == beginning.size() + kDraftLetters) {
            ClearWhenAbandoned(entry->path());
        }
    }
}

bool IsThere(const std::string& path)
{
    struct stat file
    {
    };
    if (lstat(path.c_str(), &file) == 0) {
        return true;
    }
    if (errno != ENOENT) {
        throw AtPath(errno, path);
    }
    return false;
}

// The engine keeps what it has not finished in files of these names, and would finish it in the new database.
void RefuseLeftovers(const std::string& path)
{
    for (const char* ending : {"-journal", "-wal", "-shm"}) {
        if (IsThere(path + ending)) {
            throw InTheWay("There is still a file " + path + ending + ", which belongs to another database and would spoil a new one; move it away.");
        }
    }
}

void Fill(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    Engine engine(path, NewFile{});
    engine.BeginMany();
    engine.RunScript(kSchemaSql);
    engine.RunScript(kStoredQueriesSql);
    BulkWriter writer(engine);
    if (fill) {
        fill(writer);
    }
    writer.Commit();
}

} // namespace

void CreateDatabase(const std::string& path, const std::function<void(BulkWriter&)>& fill)
{
    ClearAbandonedDrafts(path);
    if (IsThere(path)) {
        throw Draft::AlreadyThere(path);
    }
    RefuseLeftovers(path);
    Draft draft(path);
    Fill(draft.Path(), fill);
    draft.Publish(path);
}

} // namespace ptk
