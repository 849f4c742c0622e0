// An open database file, held exclusively while something is done with it, and what can be asked of it.
#pragma once

#include "store/engine/EditTrail.h"
#include "store/engine/Statement.h"
#include "store/engine/WhenHeld.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ptk {

class Connection;
class RecordSet;

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

// Failures carry the engine's primary result codes and the source "SQLite", those of the statement text's dates 13 and "PTK". After a
// failure of a statement nothing of it is left. A statement that does not come to an end is stopped after 400 million steps of the
// engine, with 9; a record set that would not fit into memory with 7. Record sets outlive the engine; prepared statements do not.
//
// The hold: there after opening, kept by every member that reads, gone with each member that ends a transaction (committed or failed) and
// with GiveUp. Every member takes it again when it is gone, and raises 5 when somebody else has had the file for more than a second by
// then.
class Engine
{
public:
    // Never creates a file. Raises 14 (missing, no regular file), 5 (held by anyone, a reader included, for more than a second), 8
    // (read-only), 26 (no database, another program's, or of a newer format) or 11 (damaged); the file is then as it was.
    explicit Engine(const std::string& path, WhenHeld whenHeld = WhenHeld::Wait);

    // The file must be there, empty.
    Engine(const std::string& path, NewFile);

    Engine(const std::string& path, ReadOnly);
    ~Engine();

    [[nodiscard]] bool IsOpen() const { return m_connection != nullptr; }

    // The members below then raise 21; nothing when closed.
    void Close();

    // After a Close: as the constructor opened it, from what was kept ready where the file is still the same. False when it is to be opened
    // anew; raises what the constructor raises, and is closed then.
    bool Reopen();
    [[nodiscard]] const std::string& Path() const { return m_path; }
    void Hold();

    // Others get at the file; what was not committed is dropped.
    void GiveUp() noexcept;

    // In the program's own SQL. Select takes only statements that answer rows and change nothing, Execute only those that answer none.
    std::shared_ptr<RecordSet> Select(std::string_view statement);

    // As a step of Write.
    void Run(std::string_view statement);

    // Likewise.
    void RunStored(std::string_view query, std::span<const Parameter> parameters);

    // On disk when it returns.
    void Execute(std::string_view statement);

    // All of them in one transaction, or nothing.
    void ExecuteAll(std::span<const std::string> statements);

    // Of the queries inside the file. A missing query raises 12, an unknown parameter or one without a value 25.
    std::shared_ptr<RecordSet> SelectStored(std::string_view query);

    // On disk when it returns.
    void ExecuteStored(std::string_view query, std::span<const Parameter> parameters);

    // The steps in one transaction, or nothing of them; on disk when it returns. What they change is in the edit trail as this author's,
    // all under the number of one step. In a file of an earlier version, which has no trail, steps that change any row are undone,
    // `keepCopy` is called, with nobody else at the file meanwhile, and they are done again together with the making of the trail; without
    // `keepCopy` such a file stays as it is.
    void Write(const std::function<void()>& steps);

    // Within the steps of Write: what is changed here is in the trail as the one entry that the caller adds, not row by row. No trigger of
    // the file runs meanwhile.
    void Untold(const std::function<void()>& steps);
    void SignAs(Author author) { m_author = std::move(author); }

    // Of the writes that follow; 0: each is a step of its own.
    void StepNumber(std::int64_t step) { m_step = step; }

    // Of the write that runs or was the last; 0 where it left no entry.
    [[nodiscard]] std::int64_t StepNumber() const { return m_lastStep; }

    void KeepCopy(std::function<void()> keepCopy) { m_keepCopy = std::move(keepCopy); }

    // Into the empty file `path`, as of one moment, without making it safe on the disk. Nobody else gets at the file meanwhile; what was
    // not committed is dropped. Raises 11 for a damaged file, 9 when `progress` ended it.
    void CopyTo(const std::string& path, const CopyProgress& progress = {});

    // For many rows in one transaction: statements in the engine's own words, or of a stored query, to be run again and again; on disk at
    // Commit only.
    std::unique_ptr<Statement> Prepare(std::string_view sql);

    // The same, ready for the next who asks for this text, also after the file was closed and opened again. Must end before it is closed.
    std::unique_ptr<Statement> PrepareToKeep(std::string_view sql);

    std::unique_ptr<Statement> PrepareStored(std::string_view query);

    // Only the rows for which a condition in the engine's own words holds, in the query's order.
    std::unique_ptr<Statement> PrepareStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters);
    void BeginMany();

    // Several statements in the engine's own words.
    void RunScript(const char* sql);

    // Of the row inserted last.
    [[nodiscard]] std::int64_t LastKey() const;

    void Commit();

    // One text a row, "ok" alone for a sound file; without a bound on its steps.
    std::shared_ptr<RecordSet> CheckIntegrity();

private:
    Connection& Open() const;
    std::string StoredText(std::string_view query);
    void RunSteps(const std::function<void()>& steps);
    void RunSigned(const std::function<void()>& steps);

    std::string m_path;
    std::unique_ptr<Connection> m_connection;
    std::unique_ptr<Connection> m_parked; // closed, and ready to be opened again
    Author m_author;
    std::int64_t m_step = 0;
    std::int64_t m_lastStep = 0;
    std::function<void()> m_keepCopy;
};

} // namespace ptk
