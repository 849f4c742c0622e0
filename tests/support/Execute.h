// Single writes that a test makes, each as another tool would.
#pragma once

#include "store/CJetDB.h"
#include "store/sqlite/SqliteEngine.h"

#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// On disk when it returns; raises as Engine::Write.
inline void Execute(Engine& engine, std::string_view statement)
{
    engine.Write([&] { engine.Run(statement); });
}

// In a file.
inline void ExecuteIn(const std::string& path, std::string_view statement)
{
    SqliteEngine engine(path);
    Execute(engine, statement);
}

// All of them in one transaction and one step, or nothing.
inline bool ExecuteAll(CJetDB& database, const std::vector<std::string>& statements)
{
    return database.ExecuteSteps([&](Engine& engine) {
        for (const std::string& statement : statements) {
            engine.Run(statement);
        }
    });
}

} // namespace ptk
