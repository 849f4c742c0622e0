// An open database: a file (store/sqlite) or a database on a server (store/postgres).
#pragma once

#include "store/engine/Author.h"
#include "store/engine/EngineWords.h"
#include "store/engine/Statement.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace ptk {

class RecordSet;
class RowSink;
struct StoredTable;

// Failures carry the file engine's primary result codes, also those of a server (5: somebody else has it, 14: it cannot be opened, 19: a
// refused value), and the engine's name as source; dates in a statement's text raise 13, a missing stored query 12, from "PTK". Nothing of
// a failed statement is left. A statement that does not come to an end is stopped with 9; a record set that would not fit into memory
// raises 7. Record sets outlive the engine; prepared statements do not.
//
// The hold is taken when the database is opened, kept by every member that reads, and ended by each member that ends a transaction
// (committed or failed) and by GiveUp. Every member takes it again when it is gone. What it means is the engine's: nobody else gets at a
// file meanwhile, and on a server all that is read is of one moment.
class Engine
{
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    [[nodiscard]] virtual bool IsOpen() const = 0;

    // Closes the database; members that need it then raise 21. Does nothing when it is closed.
    virtual void Close() = 0;

    // Opens the database again after a Close, from what was kept ready. False when it must be opened anew, because nothing was kept or it
    // is not the same any more. Raises what the constructor raises, and is closed then.
    virtual bool Reopen() = 0;

    virtual void Hold() = 0;

    // Ends the hold, so that others get at the database; what was not committed is dropped.
    virtual void GiveUp() noexcept = 0;

    // Answers the rows of a statement in the program's own SQL; one that changes anything is refused.
    std::shared_ptr<RecordSet> Select(std::string_view statement);

    // Runs a statement in the program's own SQL that answers no rows, as a step of Write.
    void Run(std::string_view statement);

    // Runs a query stored in the database, as a step of Write.
    void RunStored(std::string_view query, std::span<const Parameter> parameters);

    // Answers the rows of a query stored in the database. For all stored queries: a missing one raises 12, an unknown parameter or one
    // without a value 25.
    std::shared_ptr<RecordSet> SelectStored(std::string_view query);

    // Runs the steps in one transaction: all their changes are on disk when it returns, none when it raises. The edit trail has them as
    // this author's, under the number of one step. The steps may be run twice, the first time without any effect.
    virtual void Write(const std::function<void()>& steps) = 0;

    // Runs steps whose changes the trail does not record row by row: the caller adds one entry. REQUIRES: within Write or BeginMany.
    virtual void WithoutTrail(const std::function<void()>& steps) = 0;

    // Adds one entry to the open step, about the database as a whole: "restore" or "import", and from which file. Nothing without the
    // trail.
    virtual void AddWholeEntry(const char* action, const std::string& file) = 0;

    // Keeps others from adding rows to a table, or taking any away, before the write ends. REQUIRES: within Write.
    void LockTable(const char* table);

    [[nodiscard]] virtual bool HasTrail() = 0;

    // Whether a table exists that files of earlier versions lack; always true on a server.
    [[nodiscard]] virtual bool HasTable(const char* name) = 0;

    // Says, within Write, that the next query looks at the first row that will be changed, and locks it if it is there. A server numbers
    // the step in the same round trip.
    virtual void WillChangeNext() {}

    // Whether the database tells by itself that somebody changed it. A file has to be asked.
    [[nodiscard]] virtual bool TellsNews() const { return false; }

    // The lowest number of the trail's entries that it told of since the last call; 0 where it may have told of any, as at the first call;
    // nothing where there was none.
    [[nodiscard]] virtual std::optional<std::int64_t> TakeNews() { return 0; }

    void SignAs(Author author) { m_author = std::move(author); }

    // The step of the writes that follow; 0 makes each a step of its own.
    void StepNumber(std::int64_t step) { m_step = step; }

    // The step of the write that runs, or of the last one; 0 where it left no entry.
    [[nodiscard]] std::int64_t StepNumber() const { return m_lastStep; }

    // The newest entry of the last write; of no meaning where it left none.
    [[nodiscard]] std::int64_t NewestEntry() const { return m_newestEntry; }

    [[nodiscard]] virtual const EngineWords& Words() const = 0;

    // Prepares a statement in the engine's own words, to be run again and again.
    virtual std::unique_ptr<Statement> Prepare(std::string_view sql) = 0;

    // A statement that stays ready for the next caller with the same text, also after the database was closed and opened again. It must end
    // before the database is closed.
    virtual std::unique_ptr<Statement> PrepareToKeep(std::string_view sql) = 0;

    // Answers the whole number in the first row of a select in the engine's own words.
    [[nodiscard]] std::int64_t NumberFrom(std::string_view select);

    // Prepares a select of any number of rows, of which only those that are being read take memory. REQUIRES: nothing else is asked of the
    // database before the last of them was read.
    virtual std::unique_ptr<Statement> PrepareForAllRows(std::string_view sql) { return Prepare(sql); }

    std::unique_ptr<Statement> PrepareStored(std::string_view query);

    // A stored query that answers, in its order, only the rows that meet the condition, which is in the engine's own words.
    std::unique_ptr<Statement> PrepareStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters);
    // Begins a transaction for many rows, unless it has begun; they are on disk at Commit only.
    virtual void BeginMany() = 0;

    // Runs several statements in the engine's own words.
    virtual void RunScript(const char* sql) = 0;

    // The key of the row that was inserted last.
    [[nodiscard]] virtual std::int64_t LastKey() = 0;

    virtual void Commit() = 0;

    // A sink for the rows of one table of a new database, within WithoutTrail. No other member may be called before its Finish.
    virtual std::unique_ptr<RowSink> Fill(const StoredTable& table) = 0;

protected:
    [[nodiscard]] const Author& Signature() const { return m_author; }
    [[nodiscard]] std::int64_t WantedStep() const { return m_step; }
    void TookStep(std::int64_t step) { m_lastStep = step; }
    void LeftEntry(std::int64_t newest) { m_newestEntry = newest; }

    // The text of a stored query; raises 12 where it is missing.
    virtual std::string StoredText(std::string_view query);

private:
    Author m_author;
    std::int64_t m_step = 0;
    std::int64_t m_lastStep = 0;
    std::int64_t m_newestEntry = 0;
};

} // namespace ptk
