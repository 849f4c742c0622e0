#include "store/sqlite/SqliteEngine.h"

#include "platform/Waiting.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/Connection.h"
#include "store/sqlite/EditTrail.h"
#include "store/sqlite/EngineFailure.h"
#include "store/sqlite/SqliteSink.h"
#include "store/sqlite/SqliteStatement.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace ptk {

namespace {

constexpr std::int32_t kPagesOfMillion = 600; // that a full check sees in a million steps, where the pages are full of time records

// While it lives, nothing is committed: a statement that would end the transaction is refused, and the transaction is undone.
class OneTransaction
{
public:
    explicit OneTransaction(sqlite3* database) : m_database(database)
    {
        sqlite3_commit_hook(
            database, [](void* /*none*/) { return 1; }, nullptr);
    }
    ~OneTransaction() { sqlite3_commit_hook(m_database, nullptr, nullptr); }
    OneTransaction(const OneTransaction&) = delete;
    OneTransaction& operator=(const OneTransaction&) = delete;

private:
    sqlite3* m_database;
};

void RunWithin(sqlite3* database, const std::function<void()>& steps)
{
    const OneTransaction one(database);
    steps();
    if (sqlite3_get_autocommit(database) != 0) {
        throw EngineFailure(SQLITE_ERROR, "the statement ended the transaction");
    }
}

} // namespace

SqliteEngine::SqliteEngine(const std::string& path, WhenHeld whenHeld)
{
    RefuseDuringWait();
    m_connection = std::make_unique<Connection>(path, Connection::Access::Write, whenHeld);
    m_connection->RefuseForeignFile();
}

SqliteEngine::SqliteEngine(const std::string& path, NewFile /*tag*/) : m_connection(std::make_unique<Connection>(path)) {}

SqliteEngine::SqliteEngine(const std::string& path, ReadOnly /*tag*/)
    : m_connection(std::make_unique<Connection>(path, Connection::Access::Read))
{
    m_connection->RefuseForeignFile();
}

SqliteEngine::~SqliteEngine() = default;

void SqliteEngine::RefuseDuringWait()
{
    if (waiting::IsTurn()) {
        throw EngineFailure(SQLITE_BUSY, "the database is being waited for already");
    }
}

// A call that comes from within a wait for the file leaves it as it is.
void SqliteEngine::Close()
{
    if (waiting::IsTurn()) {
        return;
    }
    if (m_connection != nullptr && m_connection->Park()) {
        m_parked = std::move(m_connection);
    }
    m_connection.reset();
}

bool SqliteEngine::Reopen()
{
    RefuseDuringWait();
    auto parked = std::exchange(m_parked, nullptr);
    if (parked == nullptr || !parked->Resume()) {
        return false;
    }
    parked->RefuseForeignFile();
    m_connection = std::move(parked);
    return true;
}

void SqliteEngine::Hold()
{
    Open();
}

void SqliteEngine::GiveUp() noexcept
{
    if (m_connection != nullptr && !waiting::IsTurn()) {
        m_connection->Release();
    }
}

Connection& SqliteEngine::Open() const
{
    RefuseDuringWait();
    if (m_connection == nullptr) {
        throw EngineFailure(SQLITE_MISUSE, "the database is closed");
    }
    m_connection->Hold();
    return *m_connection;
}

std::unique_ptr<Statement> SqliteEngine::Prepare(std::string_view sql)
{
    auto statement = std::make_unique<SqliteStatement>(Open().Handle(), sql);
    statement->EndBy(m_end);
    return statement;
}

std::unique_ptr<Statement> SqliteEngine::PrepareToKeep(std::string_view sql)
{
    Connection& connection = Open();
    return std::make_unique<SqliteStatement>(connection.Handle(), sql, &connection.Prepared());
}

// What a failed statement changed before it failed must not reach the disk with a later one.
void SqliteEngine::Write(const std::function<void()>& steps)
{
    Connection& connection = Open();
    connection.PrepareWrite();
    TookStep(0);
    try {
        RunSteps(steps);
    } catch (...) {
        connection.Release();
        throw;
    }
    connection.Commit();
}

void SqliteEngine::RunSteps(const std::function<void()>& steps)
{
    if (m_keepCopy && !IsUpToDate(*this)) {
        return RunUpdating(steps);
    }
    return HasTrail() ? RunSigned(steps) : RunWithin(m_connection->Handle(), steps);
}

// The first run shows whether the steps change anything. The file is up to date in it, as the steps may ask for what only such a file has.
void SqliteEngine::RunUpdating(const std::function<void()>& steps)
{
    Connection& connection = *m_connection;
    BringUpToDate(*this);
    const ContentMark before = Mark();
    RunWithin(connection.Handle(), steps);
    const bool changes = Mark() != before;
    connection.Release();
    if (changes) {
        m_keepCopy();
    }
    connection.PrepareWrite();
    if (changes) {
        BringUpToDate(*this);
        RunSigned(steps);
    }
}

SqliteEngine::ContentMark SqliteEngine::Mark()
{
    return {sqlite3_total_changes(m_connection->Handle()), Select("PRAGMA schema_version")->Int32At(0)};
}

void SqliteEngine::RunSigned(const std::function<void()>& steps)
{
    const std::int64_t next = NextStep(*this);
    const std::int64_t step = WantedStep() != 0 ? WantedStep() : next;
    OpenStep(*this, Signature(), step);
    TookStep(step);
    const ContentMark before = Mark();
    RunWithin(m_connection->Handle(), steps);
    if (Mark() == before) { // no byte of the file is to change
        m_connection->Release();
        TookStep(0);
        return m_connection->PrepareWrite();
    }
    CloseStep(*this);
    const std::int64_t behind = NextStep(*this);
    TookStep(behind == next ? 0 : step); // a number without entries is given to the next step
    LeftEntry(behind - 1);
}

void SqliteEngine::WithoutTrail(const std::function<void()>& steps)
{
    sqlite3* const database = Open().Handle();
    const auto triggers = [database](int run) { sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, run, nullptr); };
    triggers(0);
    try {
        steps();
    } catch (...) {
        triggers(1);
        throw;
    }
    triggers(1);
}

void SqliteEngine::AddWholeEntry(const char* action, const std::string& file)
{
    if (HasTrail()) {
        AddEntry(*this, action, file);
    }
}

bool SqliteEngine::HasTrail()
{
    return ptk::HasTrail(*this);
}

// The engine has the tables' definitions at hand: sqlite_master, which holds the texts of all triggers, need not be searched.
bool SqliteEngine::HasTable(const char* name)
{
    sqlite3* const database = Open().Handle();
    const int code = sqlite3_table_column_metadata(database, "main", name, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    if (code != SQLITE_ERROR) {
        RaiseUnlessDone(database, code);
    }
    return code == SQLITE_OK;
}

void SqliteEngine::CopyTo(const std::string& path, const CopyProgress& progress)
{
    Open().CopyTo(path, progress);
}

void SqliteEngine::BeginMany()
{
    Open().PrepareWrite();
}

void SqliteEngine::RunScript(const char* sql)
{
    Open().Run(sql);
}

std::int64_t SqliteEngine::LastKey()
{
    return sqlite3_last_insert_rowid(Open().Handle());
}

void SqliteEngine::Commit()
{
    Open().Commit();
}

std::unique_ptr<RowSink> SqliteEngine::Fill(const StoredTable& table)
{
    return std::make_unique<SqliteSink>(Open().Handle(), table);
}

std::shared_ptr<RecordSet> SqliteEngine::CheckIntegrity()
{
    SqliteStatement check(Open().Handle(), "PRAGMA integrity_check");
    check.Watch([this] { return CoarseNow() < m_end; });
    return check.ReadRows();
}

void SqliteEngine::RefuseDamage(const CopyProgress& progress)
{
    SqliteStatement check(Open().Handle(), "PRAGMA integrity_check(1)");
    const std::int32_t pages = Select("PRAGMA page_count")->Int32At(0);
    std::int32_t checked = 0;
    check.Watch([&] {
        checked = std::min(checked + kPagesOfMillion, pages);
        return !progress || progress(checked, pages);
    });
    const auto found = check.ReadRows();
    if (found->EndOfFile() || found->TextAt(0) != "ok") {
        throw EngineFailure(SQLITE_CORRUPT);
    }
}

} // namespace ptk
