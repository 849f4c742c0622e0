// One prepared statement of an open database.
#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class RecordSet;
class StatementCache;

// A value for a parameter, by its exact name without the colon.
struct Parameter
{
    const char* name;
    Value value;
};

// How a value is stored, in the order in which the engine compares values of different kinds; nothing is true of a null.
enum class CellKind
{
    Null,
    Number,
    Text,
    Bytes
};

// Must end before its database is closed. Every member raises the engine's result code (source "SQLite") when the engine refuses.
class Statement
{
public:
    static constexpr std::int32_t kAllRows = std::numeric_limits<std::int32_t>::max();

    // Of the engine's steps, in millions. A statement that takes more does not come to an end and is stopped, with 9: reading ten million
    // records takes 90, and 400 some seconds.
    static constexpr std::int32_t kMostSteps = 400;
    static constexpr std::int32_t kAnySteps = std::numeric_limits<std::int32_t>::max();

    // `sql` is in the engine's own words and holds exactly one statement. With a cache, of the same connection, which outlives it, it is
    // taken from there and left there.
    Statement(sqlite3* database, std::string_view sql, StatementCache* cache = nullptr);

    // The same parameter may be assigned again. An unknown name is refused with 25.
    void Bind(const std::string& name, const Value& value);
    void Bind(std::span<const Parameter> parameters);

    // What Run refuses before it runs: with 25 parameters that were never assigned, with 1 a statement that answers rows.
    void RefuseUnlessAction() const;
    void Run();

    // The next rows, up to so many; fewer only at their end. Refuses with 25 parameters that were never assigned, with 1 a statement that
    // answers no rows or changes anything. Raises 7 for more rows than memory should hold.
    std::shared_ptr<RecordSet> ReadRows(std::int32_t most = kAllRows, std::int32_t mostSteps = kMostSteps);

    // Calls for each row, without keeping any: for small results many times over, between which parameters may be assigned. Refuses and
    // raises the same.
    void ForEachRow(const std::function<void()>& take);

    // For `take`, of the row at which ForEachRow stands; columns count from 0.
    [[nodiscard]] CellKind KindAt(int column) const;

    // 0 for what is no number.
    [[nodiscard]] std::int64_t Int64At(int column) const;

    // Numbers as the engine writes them; valid until the next row.
    [[nodiscard]] std::string_view TextAt(int column) const;

    // None for any other form than YYYY-MM-DD HH:MM:SS.
    [[nodiscard]] std::optional<DateTime> StoredDateAt(int column) const;

private:
    struct Ending
    {
        void operator()(sqlite3_stmt* statement) const;

        StatementCache* cache = nullptr; // nullptr: it is given up
        std::string sql;
    };
    class Limit;

    void RefuseMissingParameters() const;
    void RefuseUnlessRows() const;
    bool Step();
    void Rewind();

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Ending> m_statement;
    std::vector<bool> m_assigned; // by parameter, from 0
    std::int32_t m_steps = 0;     // in millions, since the statement began
};

} // namespace ptk
