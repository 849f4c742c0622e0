#include "store/DatabaseCreator.h"

#include "platform/Failure.h"
#include "store/BulkWriter.h"
#include "store/engine/Engine.h"
#include "store/Schema.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace ptk {

namespace {

// A file of a name of its own beside the one to be, gone again unless it got that one's name.
class Draft
{
public:
    explicit Draft(const std::string& path) : m_path(path + ".XXXXXX")
    {
        const int file = mkstemp(m_path.data()); // for the owner's eyes only from the first byte
        if (file == -1) {
            throw errno == ENOENT ? Failure(failure::PathNotFound) : Failure::FromErrno(errno);
        }
        close(file);
    }
    ~Draft()
    {
        if (!m_published) {
            unlink(m_path.c_str());
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    const std::string& Path() const { return m_path; }

    void Publish(const std::string& path)
    {
        if (!Rename(path)) {
            throw errno == EEXIST ? AlreadyThere(path) : Failure::FromErrno(errno);
        }
        m_published = true;
    }

    static Failure AlreadyThere(const std::string& path)
    {
        return {failure::PathFileAccess, "PTK", "There is already a file " + path + "."};
    }

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
    bool m_published = false;
};

void FlushFolderOf(const std::string& path)
{
    const std::string folder = std::filesystem::absolute(path).parent_path();
    const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const bool flushed = handle != -1 && fsync(handle) == 0;
    const int error = errno;
    if (handle != -1) {
        close(handle);
    }
    if (!flushed) {
        throw Failure::FromErrno(error);
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
    if (std::filesystem::exists(std::filesystem::symlink_status(path))) {
        throw Draft::AlreadyThere(path);
    }
    Draft draft(path);
    Fill(draft.Path(), fill);
    draft.Publish(path);
    FlushFolderOf(path);
}

} // namespace ptk
