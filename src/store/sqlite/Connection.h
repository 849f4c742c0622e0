// The engine's handle on one database file and the exclusive hold on it.
#pragma once

#include "store/engine/WhenHeld.h"

#include <SQLiteCpp/Database.h>

#include "store/sqlite/StatementCache.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace ptk {

// The hold is an exclusive transaction: the constructor takes it, Commit and Release give it up, and the next Hold takes it again. Where
// others use the file, each taking waits for up to one second, or not at all.
class Connection
{
public:
    enum class Access
    {
        Write,
        Read // opens files that cannot be written, too, and lets others read meanwhile
    };

    // Opens the file and takes the hold; never creates a file. Raises 14 (missing, no regular file), 5 (held by somebody else, for Write
    // also by a reader, for more than a second, or until the wait is given up), 8 (Write of a read-only file), 26 (no database, another
    // program's, or of a newer format) or 11 (damaged). Another program's file is not touched by that. An empty file passes.
    explicit Connection(const std::string& path, Access access = Access::Write, WhenHeld whenHeld = WhenHeld::Wait);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Gives the hold up but keeps the file open, so that Resume need not read the tables' definitions again, which takes most of the time
    // of a short operation. Shortly after a write the file's time stamp could not show one more change; then only the definitions are kept,
    // which carry a number of their own. False when the file should rather be closed, as always when it was replaced.
    bool Park();

    // Whether the path still leads to the unchanged file that this process parked. The hold is then taken again, with the constructor's
    // failures. False when the file is to be opened anew. REQUIRES: Park answered true.
    bool Resume();

    // Raises 26 for an empty file, another program's and one of a newer structure, and 11 for one cut short. To be called before anything
    // else.
    void RefuseForeignFile();

    [[nodiscard]] sqlite3* Handle() const { return m_database.getHandle(); }
    [[nodiscard]] StatementCache& Prepared() { return m_prepared; }

    // Runs statements that have no parameters.
    void Run(const char* sql);

    // Takes the hold unless it is there already. Raises 5 when somebody else has the file, and when another file has taken its place.
    void Hold();

    // Takes the hold and makes commits survive a power cut. To be called before anything is changed.
    void PrepareWrite();

    // Puts the changes on the disk before it returns, and gives the hold up. On failure nothing of the transaction is left, unless the
    // failure says that the change is done and only the folder could not be made safe.
    void Commit();

    // See SqliteEngine::CopyTo.
    void CopyTo(const std::string& path, const std::function<bool(std::int32_t done, std::int32_t all)>& progress);

    // Gives the hold up and drops what was changed since the last commit. Does nothing when not held.
    void Release() noexcept;

private:
    struct FileIdentity
    {
        std::uint64_t device = 0;
        std::uint64_t node = 0;
        std::uint32_t mode = 0;
        std::int32_t process = 0; // that opened the connection, which must not be used after a fork

        bool operator==(const FileIdentity&) const = default;
    };

    // Shows any change of a file's content.
    struct FileContent
    {
        std::int64_t size = 0;
        std::int64_t written = 0; // nanoseconds
        std::int64_t changed = 0; // nanoseconds; a change of the file's rights counts, too

        bool operator==(const FileContent&) const = default;
    };

    struct FileState
    {
        FileIdentity identity;
        std::optional<FileContent> content; // nothing where one more write might have the same time
    };

    void Inspect();

    // Nothing where the path leads to no regular file.
    [[nodiscard]] std::optional<FileState> ReadState() const;
    void RefuseOtherPrograms(std::int32_t applicationId, std::int32_t formatNumber) const;
    void RefuseOtherProgramsLog();
    [[nodiscard]] std::int64_t Structure();
    void RefuseNewerStructure();
    void LeaveLogAlone();
    void LeaveWriteAheadLog();
    void KeepMorePages();
    [[nodiscard]] bool IsHeld() const;
    [[nodiscard]] bool IsReplaced() const;
    bool Wait();

    std::string m_path;
    std::optional<FileState> m_parked;
    SQLite::Database m_database;
    StatementCache m_prepared;                                        // must end before m_database
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> m_rollback; // prepared in advance: later there may be no memory for it
    Access m_access;
    WhenHeld m_whenHeld;
    std::chrono::steady_clock::time_point m_patientUntil;
    bool m_inOrder = false; // whether the file was found in order before the hold, without a wait since
    bool m_durable = false; // whether commits survive a power cut
    bool m_keepsMore = false;
    bool m_keepsLock = false; // the lock could not be given back, which closing the file does
};

} // namespace ptk
