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
    // Of the engine's steps, in millions. A statement that takes more does not come to an end and is stopped, with 9: reading ten million
    // records takes 90, and 400 some seconds.
    static constexpr std::int32_t kMostSteps = 400;

    // That the engine may take for the rows of one call. Whatever takes longer, by few steps that make long texts for instance, is stopped
    // with 9, too.
    static constexpr std::chrono::seconds kMostTime{60};

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

    // In millions.
    void AllowSteps(std::int32_t mostSteps) { m_mostSteps = mostSteps; }

    // From here on it is stopped with 9, whatever else it may take.
    void EndBy(CoarseTime end) { m_end = end; }

    // For what takes its time on purpose: bounded by nothing but `goesOn`, which is asked after each million of steps and ends it with 9
    // by false. It must not raise.
    void Watch(std::function<bool()> goesOn) { m_goesOn = std::move(goesOn); }

private:
    struct Ending
    {
        void operator()(sqlite3_stmt* statement) noexcept;

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
    std::int64_t m_looks = 0;     // at the limits, since the statement began
    std::int32_t m_mostSteps = kMostSteps;
    CoarseTime m_end = CoarseTime::max();
    std::function<bool()> m_goesOn;
};

} // namespace ptk
