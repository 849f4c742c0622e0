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

// The hold is a transaction: taken by the constructor, given up by Commit and Release, and taken again by the next Hold. A file in
// use is waited for, up to one second for each taking, or not at all.
class Connection
{
public:
    enum class Access
    {
        Write,
        Read // also of files that cannot be written; others may read them too
    };

    // Opens for reading and writing, exclusively and without ever creating a file. Raises 14 (missing, no regular file), 5 (held by anyone,
    // a reader included, for more than a second, or until the wait is given up), 8 (read-only), 26 (no database, another program's, or of a
    // newer format) or 11 (damaged); another program's file is not touched by that. An empty file passes.
    explicit Connection(const std::string& path, Access access = Access::Write, WhenHeld whenHeld = WhenHeld::Wait);
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Gives the hold up and keeps the file open, so that the next Resume need not read its tables' definitions again, which takes most of
    // the time of a short operation. Of a file so fresh, after a write for instance, that its time would not tell another change, only the
    // definitions are kept, which have a number of their own. False when it should rather be closed, a replaced file always.
    bool Park();

    // Whether the path still leads to the file as it was parked, by the same process; it is then held again, as by the constructor, which
    // also raises the same. False when it is to be opened anew.
    bool Resume();

    // Raises 26 for an empty file and one of a newer structure, 11 for one cut short; to be called before anything else.
    void RefuseForeignFile();

    [[nodiscard]] sqlite3* Handle() const { return m_database.getHandle(); }
    [[nodiscard]] StatementCache& Prepared() { return m_prepared; }

    // Statements without parameters.
    void Run(const char* sql);

    // Nothing when held. Raises 5 also where another file has taken the place of this one since it was opened.
    void Hold();

    // Holds; before anything is changed.
    void PrepareWrite();

    // On disk when it returns, and not held; on failure nothing of the transaction is left, unless the failure says that all is done and
    // only the folder could not be made safe.
    void Commit();

    // See Engine::CopyTo.
    void CopyTo(const std::string& path, const std::function<bool(std::int32_t done, std::int32_t all)>& progress);

    // Drops what was changed since the last commit; nothing when not held.
    void Release() noexcept;

private:
    struct FileIdentity
    {
        std::uint64_t device = 0;
        std::uint64_t node = 0;
        std::uint32_t mode = 0;
        std::int32_t process = 0; // whose connection it is: it must not be used after a fork

        bool operator==(const FileIdentity&) const = default;
    };

    // What tells any change of what is in it.
    struct FileContent
    {
        std::int64_t size = 0;
        std::int64_t written = 0; // nanoseconds
        std::int64_t changed = 0; // nanoseconds, rights included

        bool operator==(const FileContent&) const = default;
    };

    struct FileState
    {
        FileIdentity identity;
        std::optional<FileContent> content; // nothing where one more write might have the same time
    };

    void Inspect();

    // Nothing where the path leads to no file.
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
    StatementCache m_prepared;                                        // ends before it
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> m_rollback; // ready beforehand: for its text there may be no memory left
    Access m_access;
    WhenHeld m_whenHeld;
    std::chrono::steady_clock::time_point m_patientUntil;
    bool m_inOrder = false; // whether what the file is was seen from outside, without a wait
    bool m_durable = false; // whether commits survive a power cut
    bool m_keepsMore = false;
    bool m_keepsLock = false; // could not be given back, which closing the file does
};

} // namespace ptk
