// A statement of an open database file.
#pragma once

#include "platform/system/CoarseTime.h"
#include "store/engine/Statement.h"

#include <chrono>
#include <functional>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace ptk {

class StatementCache;

// Failures carry the primary result codes and the source "SQLite".
class SqliteStatement final : public Statement
{
public:
    // The most steps of the engine that a statement may take, in millions. One that takes more would not come to an end and is stopped with
    // 9: ten million records are read in 90, and 400 take some seconds.
    static constexpr std::int32_t kMostSteps = 400;

    // The most time that the engine may take for the rows of one call. Whatever takes longer, by few steps that make long texts for
    // instance, is stopped with 9, too.
    static constexpr std::chrono::seconds kMostTime{60};

    // `sql` is in the engine's own words and holds exactly one statement. With a cache, the prepared statement is taken from there and left
    // there; the cache is that of the same connection and outlives this.
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

    // Sets another limit than kMostSteps, in millions.
    void AllowSteps(std::int32_t mostSteps) { m_mostSteps = mostSteps; }

    // Stops the statement with 9 at `end`, whatever else it may take.
    void EndBy(CoarseTime end) { m_end = end; }

    // Lifts all limits, for what takes its time on purpose. `goesOn` is asked after each million of steps, and its false ends the statement
    // with 9. It must not raise.
    void Watch(std::function<bool()> goesOn) { m_goesOn = std::move(goesOn); }

private:
    struct Ending
    {
        void operator()(sqlite3_stmt* statement) noexcept;

        StatementCache* cache = nullptr; // takes the statement back; nullptr: it is given up
        std::string sql;
    };
    class Limit;

    void RefuseMissingParameters() const;
    void RefuseUnlessRows() const;
    bool Step();
    void Rewind();

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Ending> m_statement;
    std::vector<bool> m_assigned; // whether each parameter has a value, from 0
    std::int64_t m_looks = 0;     // how often the limits were looked at since the statement began
    std::int32_t m_mostSteps = kMostSteps;
    CoarseTime m_end = CoarseTime::max();
    std::function<bool()> m_goesOn;
};

} // namespace ptk
