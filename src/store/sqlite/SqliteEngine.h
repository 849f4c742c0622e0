// An open database file, held exclusively while something is done with it.
#pragma once

#include "platform/system/CoarseTime.h"
#include "store/engine/Engine.h"
#include "store/engine/WhenHeld.h"
#include "store/sqlite/SqliteWords.h"

#include <utility>

namespace ptk {

class Connection;

// Tells that a file is empty and about to get its tables.
struct NewFile
{
};

// Tells that a file is only to be looked at: it may be one that cannot be written, and others may read it meanwhile.
struct ReadOnly
{
};

// Is called with the pages of a copy or a check that are done, and all its pages; false ends it.
using CopyProgress = std::function<bool(std::int32_t done, std::int32_t all)>;

// Failures carry the source "SQLite". The hold is on the whole file: members that take it raise 5 when somebody else has had the file for
// more than a second by then.
class SqliteEngine final : public Engine
{
public:
    // Opens an existing file; never creates one. Raises 14 (missing, no regular file), 5 (held by anyone, a reader included, for more than
    // a second), 8 (read-only), 26 (empty, no database, another program's, or of a newer format) or 11 (damaged); the file is then as it
    // was.
    explicit SqliteEngine(const std::string& path, WhenHeld whenHeld = WhenHeld::Wait);

    // Opens an empty file, which must be there.
    SqliteEngine(const std::string& path, NewFile);

    SqliteEngine(const std::string& path, ReadOnly);
    ~SqliteEngine() override;

    [[nodiscard]] bool IsOpen() const override { return m_connection != nullptr; }
    void Close() override;
    bool Reopen() override;
    void Hold() override;
    void GiveUp() noexcept override;

    // In a file of an earlier version, steps that change any row are undone; `keepCopy` then copies the file, while nobody else gets at it,
    // and the steps are done again, together with bringing the file up to date. Without `keepCopy` such a file stays of its version.
    void Write(const std::function<void()>& steps) override;
    void KeepCopy(std::function<void()> keepCopy) { m_keepCopy = std::move(keepCopy); }

    // Runs the steps without the file's triggers.
    void WithoutTrail(const std::function<void()>& steps) override;
    void AddWholeEntry(const char* action, const std::string& file) override;
    [[nodiscard]] bool HasTrail() override;
    [[nodiscard]] bool HasTable(const char* name) override;

    [[nodiscard]] const EngineWords& Words() const override { return kSqliteWords; }
    std::unique_ptr<Statement> Prepare(std::string_view sql) override;
    std::unique_ptr<Statement> PrepareToKeep(std::string_view sql) override;
    void BeginMany() override;
    void RunScript(const char* sql) override;
    [[nodiscard]] std::int64_t LastKey() override;
    void Commit() override;
    std::unique_ptr<RowSink> Fill(const StoredTable& table) override;

    // Copies the database as of one moment into the empty file `path`, which is not yet made safe on the disk. Nobody else gets at the file
    // meanwhile; what was not committed is dropped. Raises 11 for a damaged file, 9 when `progress` ended it, and 61 or 57, which are no
    // failures of the database, when the copy cannot be written.
    void CopyTo(const std::string& path, const CopyProgress& progress = {});

    // Sets one end for CheckIntegrity and all that Prepare makes from here on: what still runs at that time, or begins later and takes
    // longer than a moment, is stopped with 9.
    void EndBy(CoarseTime end) { m_end = end; }

    // Checks the whole file and answers one text a row, "ok" alone for a sound file. Only EndBy bounds it.
    std::shared_ptr<RecordSet> CheckIntegrity();

    // Checks the whole file, also whether each index holds each row and nothing else, and raises 11 for a damaged one. A card is read from
    // an index, so that a backup which passed a lesser check could pay by rows that are not there. A million records take two seconds;
    // there is no bound. `progress` gets an estimate of the pages; it must not raise, and its false ends the check with 9.
    void RefuseDamage(const CopyProgress& progress = {});

private:
    Connection& Open() const;
    static void RefuseDuringWait();
    void RunSteps(const std::function<void()>& steps);
    // A mark that differs after any change of rows or tables.
    using ContentMark = std::pair<int, std::int32_t>;
    [[nodiscard]] ContentMark Mark();

    void RunUpdating(const std::function<void()>& steps);
    void RunSigned(const std::function<void()>& steps);

    std::unique_ptr<Connection> m_connection;
    std::unique_ptr<Connection> m_parked; // closed, and ready to be opened again
    std::function<void()> m_keepCopy;
    CoarseTime m_end = CoarseTime::max();
};

} // namespace ptk
