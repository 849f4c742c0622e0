#include "store/engine/Engine.h"

#include "store/engine/Connection.h"
#include "store/engine/Dialect.h"
#include "store/engine/EngineFailure.h"
#include "store/engine/RecordSet.h"

#include <sqlite3.h>

namespace ptk {

Engine::Engine(const std::string& path) : m_connection(std::make_unique<Connection>(path))
{
    m_connection->RefuseForeignFile();
}

Engine::Engine(const std::string& path, NewFile /*tag*/) : m_connection(std::make_unique<Connection>(path)) {}

Engine::~Engine() = default;

void Engine::Close()
{
    m_connection.reset();
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

void Engine::Execute(std::string_view statement)
{
    Commit([&] { Prepare(TranslateStatement(statement))->Run(); });
}

void Engine::ExecuteAll(std::span<const std::string> statements)
{
    Commit([&] {
        for (const std::string& statement : statements) {
            Prepare(TranslateStatement(statement))->Run();
        }
    });
}

std::shared_ptr<RecordSet> Engine::SelectStored(std::string_view query)
{
    return PrepareStored(query)->ReadRows();
}

std::shared_ptr<RecordSet> Engine::SelectStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters)
{
    std::string text = StoredText(query);
    text.erase(text.find_last_not_of(" \t\r\n;") + 1);
    // On a line of its own, since the text may end in a comment.
    const auto statement = Prepare("SELECT * FROM (" + text + "\n) WHERE " + std::string(condition));
    statement->Bind(parameters);
    return statement->ReadRows();
}

void Engine::ExecuteStored(std::string_view query, std::span<const Parameter> parameters)
{
    Commit([&] {
        const auto statement = PrepareStored(query);
        statement->Bind(parameters);
        statement->Run();
    });
}

// What a failed statement changed before it failed must not reach the disk with a later one.
template <typename Steps>
void Engine::Commit(Steps steps)
{
    Connection& connection = Open();
    connection.PrepareWrite();
    try {
        steps();
    } catch (...) {
        connection.Release();
        throw;
    }
    connection.Commit();
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
