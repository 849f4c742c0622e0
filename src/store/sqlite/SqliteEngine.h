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

// Told how much of a copy is done, in pages; false ends it.
using CopyProgress = std::function<bool(std::int32_t done, std::int32_t all)>;

// Failures carry the source "SQLite". The hold is the file's: members that take it raise 5 when somebody else has had the file for more
// than a second by then.
class SqliteEngine final : public Engine
{
public:
    // Never creates a file. Raises 14 (missing, no regular file), 5 (held by anyone, a reader included, for more than a second), 8
    // (read-only), 26 (no database, another program's, or of a newer format) or 11 (damaged); the file is then as it was.
    explicit SqliteEngine(const std::string& path, WhenHeld whenHeld = WhenHeld::Wait);

    // The file must be there, empty.
    SqliteEngine(const std::string& path, NewFile);

    SqliteEngine(const std::string& path, ReadOnly);
    ~SqliteEngine() override;

    [[nodiscard]] bool IsOpen() const override { return m_connection != nullptr; }
    void Close() override;
    bool Reopen() override;
    void Hold() override;
    void GiveUp() noexcept override;

    // In a file of an earlier version, steps that change any row are undone, `keepCopy` is called, with nobody else at the file meanwhile,
    // and they are done again together with bringing it up to date; without `keepCopy` such a file stays as it is.
    void Write(const std::function<void()>& steps) override;
    void KeepCopy(std::function<void()> keepCopy) { m_keepCopy = std::move(keepCopy); }

    // No trigger of the file runs meanwhile.
    void Untold(const std::function<void()>& steps) override;
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

    // Into the empty file `path`, as of one moment, without making it safe on the disk. Nobody else gets at the file meanwhile; what was
    // not committed is dropped. Raises 11 for a damaged file, 9 when `progress` ended it, and 61 or 57, which are no failures of the
    // database, when the copy cannot be written.
    void CopyTo(const std::string& path, const CopyProgress& progress = {});

    // For all that is prepared from here on together: what runs at that time, or later for longer than a
    // moment, is stopped with 9.
    void EndBy(CoarseTime end) { m_end = end; }

    // One text a row, "ok" alone for a sound file; bounded by EndBy only.
    std::shared_ptr<RecordSet> CheckIntegrity();

    // Raises 11 for a damaged file, by the full check: also whether each row is in each index, and nothing else. A card is read from an
    // index, so that a backup which is told sound without it could pay by rows that are not there. A million records take two seconds.
    // Without a bound; `progress` is told of pages, by estimate, must not raise, and ends it with 9.
    void RefuseDamage(const CopyProgress& progress = {});

private:
    Connection& Open() const;
    static void RefuseDuringWait();
    void RunSteps(const std::function<void()>& steps);
    // Another one after any change of rows or tables.
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
