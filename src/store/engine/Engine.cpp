#include "store/engine/Engine.h"

#include "platform/Failure.h"
#include "store/engine/Dialect.h"
#include "store/engine/EngineNumber.h"
#include "store/engine/RecordSet.h"

namespace ptk {

// The queries' texts are part of the database, so that one with other tables can bring queries that fit them.
std::string Engine::StoredText(std::string_view query)
{
    const auto search = Prepare("SELECT sql FROM _StoredQuery WHERE name = :name");
    search->Bind("name", std::string(query));
    const auto found = search->ReadRows();
    if (found->EndOfFile()) {
        throw Failure(engine::NotFound, "PTK", "there is no stored query " + std::string(query));
    }
    return std::string(found->TextAt(0));
}

std::unique_ptr<Statement> Engine::PrepareStored(std::string_view query)
{
    return Prepare(StoredText(query));
}

std::unique_ptr<Statement> Engine::PrepareStored(std::string_view query, std::string_view condition, std::span<const Parameter> parameters)
{
    std::string text = StoredText(query);
    text.erase(text.find_last_not_of(" \t\r\n;") + 1);
    // The condition stands on a line of its own, since the text may end in a comment.
    auto statement = Prepare("SELECT * FROM (" + text + "\n) AS Listed WHERE " + std::string(condition));
    statement->Bind(parameters);
    return statement;
}

std::shared_ptr<RecordSet> Engine::Select(std::string_view statement)
{
    return Prepare(TranslateStatement(statement))->ReadRows();
}

void Engine::Run(std::string_view statement)
{
    Prepare(TranslateStatement(statement))->Run();
}

std::shared_ptr<RecordSet> Engine::SelectStored(std::string_view query)
{
    return PrepareStored(query)->ReadRows();
}

void Engine::RunStored(std::string_view query, std::span<const Parameter> parameters)
{
    const auto statement = PrepareStored(query);
    statement->Bind(parameters);
    statement->Run();
}

void Engine::LockTable(const char* table)
{
    if (const std::string lock = FilledIn(Words().lockTable, table); !lock.empty()) {
        Prepare(lock)->Run();
    }
}

std::int64_t Engine::NumberFrom(std::string_view select)
{
    return Prepare(select)->ReadRows()->Int64At(0);
}

} // namespace ptk
