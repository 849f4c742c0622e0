// A statement of an open database file.
#pragma once

#include "store/engine/Statement.h"

#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class StatementCache;

// Failures carry the primary result codes and the source "SQLite".
class SqliteStatement final : public Statement
{
public:
    // Of the engine's steps, in millions. A statement that takes more does not come to an end and is stopped, with 9: reading ten million
    // records takes 90, and 400 some seconds.
    static constexpr std::int32_t kMostSteps = 400;
    static constexpr std::int32_t kAnySteps = std::numeric_limits<std::int32_t>::max();

    // `sql` is in the engine's own words and holds exactly one statement. With a cache, of the same connection, which outlives it, it is
    // taken from there and left there.
    SqliteStatement(sqlite3* database, std::string_view sql, StatementCache* cache = nullptr);

    using Statement::Bind;
    void Bind(const std::string& name, const Value& value) override;
    void RefuseUnlessAction() override;
    void Run() override;
    std::shared_ptr<RecordSet> ReadRows(std::int32_t most = kAllRows) override;
    void ForEachRow(const std::function<void()>& take) override;
    [[nodiscard]] CellKind KindAt(int column) const override;
    [[nodiscard]] std::int64_t Int64At(int column) const override;
    [[nodiscard]] double RealAt(int column) const override;
    [[nodiscard]] std::string_view TextAt(int column) const override;
    [[nodiscard]] std::optional<DateTime> StoredDateAt(int column) const override;

    // The same, for what takes its time on purpose.
    void AllowSteps(std::int32_t mostSteps) { m_mostSteps = mostSteps; }

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
    std::int32_t m_mostSteps = kMostSteps;
};

} // namespace ptk
