// An open database file, held exclusively, and what can be asked of it.
#pragma once

#include "platform/Value.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ptk {

class Connection;
class RecordSet;
class Statement;

// A value for a parameter of a stored query, by the parameter's exact name.
struct Parameter
{
    const char* name;
    Value value;
};

// Tells that a file is empty and about to get its tables.
struct NewFile
{
};

// Failures carry the engine's primary result codes and the source "SQLite", those of the statement text's dates 13 and "PTK". After a
// failure of a statement nothing of it is left. Record sets outlive the engine; prepared statements do not.
class Engine
{
public:
    // Never creates a file, never waits. Raises 14 (missing, a folder), 5 (held by anyone, a reader included), 8 (read-only), 26 (no
    // database, or of a newer format) or 11 (damaged); the file is then as it was.
    explicit Engine(const std::string& path);
    Engine(const std::string& path, NewFile); // the file must be there, empty
    ~Engine();

    bool IsOpen() const { return m_connection != nullptr; }
    void Close(); // the members below then raise 21; nothing when closed

    // In the program's own SQL. Select takes only statements that answer rows and change nothing, Execute only those that answer none.
    std::shared_ptr<RecordSet> Select(std::string_view statement);
    void Execute(std::string_view statement); // on disk when it returns

    // Of the queries inside the file. A missing query raises 12, an unknown parameter or one without a value 25.
    std::shared_ptr<RecordSet> SelectStored(std::string_view query);
    void ExecuteStored(std::string_view query, std::span<const Parameter> parameters); // on disk when it returns

    // For many rows in one transaction: statements in the engine's own words, or of a stored query, to be run again and again; on disk at
    // Commit only.
    std::unique_ptr<Statement> Prepare(std::string_view sql);
    std::unique_ptr<Statement> PrepareStored(std::string_view query);
    void BeginMany();
    void RunScript(const char* sql); // several statements in the engine's own words
    std::int64_t LastKey() const;    // of the row inserted last
    void Commit();

private:
    Connection& Open() const;
    void RunAndCommit(Statement& statement);

    std::unique_ptr<Connection> m_connection;
};

} // namespace ptk
