#include "store/engine/Engine.h"

#include "store/engine/Connection.h"
#include "store/engine/Dialect.h"
#include "store/engine/EngineFailure.h"
#include "store/engine/RecordSet.h"

#include <sqlite3.h>
#include <utility>

namespace ptk {

namespace {

// While it lives, nothing is committed: a statement that would end the transaction is refused, and what belongs to it goes.
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

Engine::Engine(const std::string& path, WhenHeld whenHeld)
    : m_path(path), m_connection(std::make_unique<Connection>(path, Connection::Access::Write, whenHeld))
{
    m_connection->RefuseForeignFile();
}

Engine::Engine(const std::string& path, NewFile /*tag*/) : m_connection(std::make_unique<Connection>(path)) {}

Engine::Engine(const std::string& path, ReadOnly /*tag*/) : m_connection(std::make_unique<Connection>(path, Connection::Access::Read))
{
    m_connection->RefuseForeignFile();
}

Engine::~Engine() = default;

void Engine::Close()
{
    if (m_connection != nullptr && m_connection->Park()) {
        m_parked = std::move(m_connection);
    }
    m_connection.reset();
}

bool Engine::Reopen()
{
    auto parked = std::exchange(m_parked, nullptr);
    if (parked == nullptr || !parked->Resume()) {
        return false;
    }
    parked->RefuseForeignFile();
    m_connection = std::move(parked);
    return true;
}

void Engine::Hold()
{
    Open();
}

void Engine::GiveUp() noexcept
{
    if (m_connection != nullptr) {
        m_connection->Release();
    }
}

Connection& Engine::Open() const
{
    if (m_connection == nullptr) {
        throw EngineFailure(SQLITE_MISUSE, "the database is closed");
    }
    m_connection->Hold();
    return *m_connection;
}

std::unique_ptr<Statement> Engine::Prepare(std::string_view sql)
{
    return std::make_unique<Statement>(Open().Handle(), sql);
}

std::unique_ptr<Statement> Engine::PrepareToKeep(std::string_view sql)
{
    Connection& connection = Open();
    return std::make_unique<Statement>(connection.Handle(), sql, &connection.Prepared());
}

// The queries' texts are part of the file, so that a file of other tables can bring queries that fit them.
std::string Engine::StoredText(std::string_view query)
{
    Statement search(Open().Handle(), "SELECT sql FROM _StoredQuery WHERE name = :name");
    search.Bind("name", std::string(query));
    const auto found = search.ReadRows();
    if (found->EndOfFile()) {
        throw EngineFailure(SQLITE_NOTFOUND, "there is no stored query " + std::string(query));
    }
    return std::string(found->TextAt(0));
}

std::unique_ptr<Statement> Engine::PrepareStored(std::string_view query)
{
    return Prepare(StoredText(query));
}

std::shared_ptr<RecordSet> Engine::Select(std::string_view statement)
{
    return Prepare(TranslateStatement(statement))->ReadRows();
}

void Engine::Run(std::string_view statement)
{
    Prepare(TranslateStatement(statement))->Run();
}

void Engine::Execute(std::string_view statement)
{
    Write([&] { Run(statement); });
}

void Engine::ExecuteAll(std::span<const std::string> statements)
{
    Write([&] {
        for (const std::string& statement : statements) {
            Run(statement);
        }
    });
}

std::shared_ptr<RecordSet> Engine::SelectStored(std::string_view query)
{
    return PrepareStored(query)->ReadRows();
}

std::unique_ptr<Statement> Engine::PrepareStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters)
{
    std::string text = StoredText(query);
    text.erase(text.find_last_not_of(" \t\r\n;") + 1);
    // On a line of its own, since the text may end in a comment.
    auto statement = Prepare("SELECT * FROM (" + text + "\n) WHERE " + std::string(condition));
    statement->Bind(parameters);
    return statement;
}

void Engine::RunStored(std::string_view query, std::span<const Parameter> parameters)
{
    const auto statement = PrepareStored(query);
    statement->Bind(parameters);
    statement->Run();
}

void Engine::ExecuteStored(std::string_view query, std::span<const Parameter> parameters)
{
    Write([&] { RunStored(query, parameters); });
}

// What a failed statement changed before it failed must not reach the disk with a later one.
void Engine::Write(const std::function<void()>& steps)
{
    Connection& connection = Open();
    connection.PrepareWrite();
    m_lastStep = 0;
    try {
        RunSteps(steps);
    } catch (...) {
        connection.Release();
        throw;
    }
    connection.Commit();
}

void Engine::RunSteps(const std::function<void()>& steps)
{
    if (HasTrail(*this)) {
        return RunSigned(steps);
    }
    Connection& connection = *m_connection;
    const int before = sqlite3_total_changes(connection.Handle());
    RunWithin(connection.Handle(), steps);
    if (!m_keepCopy || sqlite3_total_changes(connection.Handle()) == before) {
        return;
    }
    connection.Release();
    m_keepCopy();
    connection.PrepareWrite();
    InstallTrail(*this);
    RunSigned(steps);
}

void Engine::RunSigned(const std::function<void()>& steps)
{
    const std::int64_t next = NextStep(*this);
    const std::int64_t step = m_step != 0 ? m_step : next;
    OpenStep(*this, m_author, step);
    m_lastStep = step;
    RunWithin(m_connection->Handle(), steps);
    CloseStep(*this);
    m_lastStep = NextStep(*this) == next ? 0 : step; // a number without entries is given to the next step
}

void Engine::Untold(const std::function<void()>& steps)
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

void Engine::CopyTo(const std::string& path, const CopyProgress& progress)
{
    Open().CopyTo(path, progress);
}

void Engine::BeginMany()
{
    Open().PrepareWrite();
}

void Engine::RunScript(const char* sql)
{
    Open().Run(sql);
}

std::int64_t Engine::LastKey() const
{
    return sqlite3_last_insert_rowid(Open().Handle());
}

void Engine::Commit()
{
    Open().Commit();
}

std::shared_ptr<RecordSet> Engine::CheckIntegrity()
{
    return Prepare("PRAGMA integrity_check")->ReadRows(Statement::kAllRows, Statement::kAnySteps);
}

} // namespace ptk
