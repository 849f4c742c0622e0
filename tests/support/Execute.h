// Writes that a test makes to a database, as another tool would.
#pragma once

#include "store/CJetDB.h"
#include "store/sqlite/SqliteEngine.h"

#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// Runs the statement, which is on the disk when this returns. Raises what Engine::Write raises.
inline void Execute(Engine& engine, std::string_view statement)
{
    engine.Write([&] { engine.Run(statement); });
}

// Runs the statement in the database file at `path`.
inline void ExecuteIn(const std::string& path, std::string_view statement)
{
    SqliteEngine engine(path);
    Execute(engine, statement);
}

// Runs all statements in one transaction and as one step, or none; false where it did not.
inline bool ExecuteAll(CJetDB& database, const std::vector<std::string>& statements)
{
    return database.ExecuteSteps([&](Engine& engine) {
        for (const std::string& statement : statements) {
            engine.Run(statement);
        }
    });
}

} // namespace ptk
