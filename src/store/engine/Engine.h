// An open database and what can be asked of it, whatever keeps it: a file (store/sqlite) or a server (store/postgres).
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
// refused value), and the engine's name as source; those of the statement text's dates 13 and "PTK". After a failure of a statement nothing
// of it is left. A statement that does not come to an end is stopped, with 9; a record set that would not fit into memory raises 7. Record
// sets outlive the engine; prepared statements do not.
//
// The hold: there after opening, kept by every member that reads, gone with each member that ends a transaction (committed or failed) and
// with GiveUp. Every member takes it again when it is gone. What it means is the engine's: nobody else gets at a file meanwhile, and on a
// server all that is read is of one moment.
class Engine
{
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    [[nodiscard]] virtual bool IsOpen() const = 0;

    // The members below then raise 21; nothing when closed.
    virtual void Close() = 0;

    // After a Close: as the constructor opened it, from what was kept ready where the database is still the same. False when it is to be
    // opened anew; raises what the constructor raises, and is closed then.
    virtual bool Reopen() = 0;

    virtual void Hold() = 0;

    // Others get at the database; what was not committed is dropped.
    virtual void GiveUp() noexcept = 0;

    // In the program's own SQL. Select takes only statements that answer rows and change nothing, Run only those that answer none.
    std::shared_ptr<RecordSet> Select(std::string_view statement);

    // As a step of Write.
    void Run(std::string_view statement);

    // A query inside the database, as a step of Write.
    void RunStored(std::string_view query, std::span<const Parameter> parameters);

    // Of the queries inside the database. A missing query raises 12, an unknown parameter or one without a value 25.
    std::shared_ptr<RecordSet> SelectStored(std::string_view query);

    // The steps in one transaction, or nothing of them; on disk when it returns. What they change is in the edit trail as this author's,
    // all under the number of one step. They may be run twice, the first time without any effect.
    virtual void Write(const std::function<void()>& steps) = 0;

    // Within the steps of Write: what is changed here is in the trail as the one entry that the caller adds, not row by row.
    virtual void Untold(const std::function<void()>& steps) = 0;

    // One entry of the step that is open, of no row but of the database as a whole: "restore" or "import", and from which file. Nothing in
    // a database without the trail.
    virtual void AddWholeEntry(const char* action, const std::string& file) = 0;

    [[nodiscard]] virtual bool HasTrail() = 0;

    // Whether a table is there which files of earlier versions lack; always on a server.
    [[nodiscard]] virtual bool HasTable(const char* name) = 0;

    // Within the steps of Write: what is asked for next, and locked as far as it is there, is the first that is going to be changed. A
    // server numbers the step with the same question.
    virtual void WillChangeNext() {}

    // Whether the database tells by itself when somebody changes it. A file has to be asked.
    [[nodiscard]] virtual bool TellsNews() const { return false; }

    // The least number of an entry that it told of since the last question; 0 where it may have told of any before, as at the first
    // question, and nothing where there was none.
    [[nodiscard]] virtual std::optional<std::int64_t> TakeNews() { return 0; }

    void SignAs(Author author) { m_author = std::move(author); }

    // Of the writes that follow; 0: each is a step of its own.
    void StepNumber(std::int64_t step) { m_step = step; }

    // Of the write that runs or was the last; 0 where it left no entry.
    [[nodiscard]] std::int64_t StepNumber() const { return m_lastStep; }

    // Of the last write: its newest entry; of no meaning where it left none.
    [[nodiscard]] std::int64_t NewestEntry() const { return m_newestEntry; }

    [[nodiscard]] virtual const EngineWords& Words() const = 0;

    // For many rows in one transaction: statements in the engine's own words, or of a stored query, to be run again and again; on disk at
    // Commit only.
    virtual std::unique_ptr<Statement> Prepare(std::string_view sql) = 0;

    // A statement that stays ready for the next who asks for this text, also after the database was closed and opened again. Must end
    // before it is closed.
    virtual std::unique_ptr<Statement> PrepareToKeep(std::string_view sql) = 0;

    // A select of any number of rows, of which only those that are being read take memory. Nothing else is asked of the database before the
    // last of them was read.
    virtual std::unique_ptr<Statement> PrepareForAllRows(std::string_view sql) { return Prepare(sql); }

    std::unique_ptr<Statement> PrepareStored(std::string_view query);

    // Only the rows for which a condition in the engine's own words holds, in the query's order.
    std::unique_ptr<Statement> PrepareStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters);
    virtual void BeginMany() = 0;

    // Several statements in the engine's own words.
    virtual void RunScript(const char* sql) = 0;

    // Of the row inserted last.
    [[nodiscard]] virtual std::int64_t LastKey() = 0;

    virtual void Commit() = 0;

    // For the rows of one table in a new database that is being made, and Untold. No other member may be called before its Finish.
    virtual std::unique_ptr<RowSink> Fill(const StoredTable& table) = 0;

protected:
    [[nodiscard]] const Author& Signature() const { return m_author; }
    [[nodiscard]] std::int64_t WantedStep() const { return m_step; }
    void TookStep(std::int64_t step) { m_lastStep = step; }
    void LeftEntry(std::int64_t newest) { m_newestEntry = newest; }

    // Raises 12 for a missing query.
    virtual std::string StoredText(std::string_view query);

private:
    Author m_author;
    std::int64_t m_step = 0;
    std::int64_t m_lastStep = 0;
    std::int64_t m_newestEntry = 0;
};

} // namespace ptk
