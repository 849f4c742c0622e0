// One prepared statement of an open database.
#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class RecordSet;

// A value for a parameter, by its exact name without the colon.
struct Parameter
{
    const char* name;
    Value value;
};

// Must end before its database is closed. Every member raises the engine's result code (source "SQLite") when the engine refuses.
class Statement
{
public:
    // Whether a statement is stopped (9) that takes more steps than any honest one: reading ten million records takes a tenth of them.
    enum class Bound
    {
        Steps,
        None
    };

    static constexpr std::int32_t kAllRows = std::numeric_limits<std::int32_t>::max();

    // `sql` is in the engine's own words and holds exactly one statement.
    Statement(sqlite3* database, std::string_view sql);

    // The same parameter may be assigned again. An unknown name is refused with 25.
    void Bind(const std::string& name, const Value& value);
    void Bind(std::span<const Parameter> parameters);

    // What Run refuses before it runs: with 25 parameters that were never assigned, with 1 a statement that answers rows.
    void RefuseUnlessAction() const;
    void Run();

    // The next rows, up to so many; fewer only at their end. Refuses with 25 parameters that were never assigned, with 1 a statement that
    // answers no rows or changes anything. Raises 7 for more rows than memory should hold.
    std::shared_ptr<RecordSet> ReadRows(std::int32_t most = kAllRows, Bound bound = Bound::Steps);
    std::shared_ptr<RecordSet> ReadRows(Bound bound) { return ReadRows(kAllRows, bound); }

private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt* statement) const;
    };
    class Guard;

    void RefuseMissingParameters() const;
    bool Step();
    void Rewind();

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    std::vector<bool> m_assigned; // by parameter, from 0
    std::int32_t m_ticks = 0;     // so many times kStepsInATick steps were taken
};

} // namespace ptk
