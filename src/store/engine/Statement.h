// One prepared statement of an open database.
#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class RecordSet;

// Must end before its database is closed. Every member raises the engine's result code (source "SQLite") when the engine refuses.
class Statement
{
public:
    // `sql` is in the engine's own words and holds exactly one statement.
    Statement(sqlite3* database, std::string_view sql);

    // Named as in the statement, without the colon; the same parameter may be assigned again. An unknown name is refused with 25.
    void Bind(const std::string& name, const Value& value);

    // Both refuse with 25 when a parameter was never assigned.
    void Run();                            // refuses a statement that answers rows, with 1
    std::shared_ptr<RecordSet> ReadRows(); // refuses a statement that answers none or that changes anything, with 1

private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    void RefuseMissingParameters() const;
    bool Step();
    void Rewind();

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    std::vector<bool> m_assigned; // by parameter, from 0
};

} // namespace ptk
