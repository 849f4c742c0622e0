// A statement of a server's database.
#pragma once

#include "store/engine/Statement.h"
#include "store/postgres/line/ServerLine.h"
#include "store/postgres/ServerText.h"

#include <vector>

namespace ptk {

class PostgresEngine;
enum class Intent;

// How a statement is going to be used.
enum class Usage
{
    Once,    // the server prepares it for its second run, if there is one
    Often,   // prepared and kept for the next who asks for this text
    RowByRow // for any number of rows, which come one by one
};

// Failures carry the source "PostgreSQL". All rows of an answer are there at once, so that other statements can be run between them, but
// for those that come one by one.
class PostgresStatement final : public Statement
{
public:
    PostgresStatement(PostgresEngine& engine, std::string_view sql, Usage usage);

    using Statement::Bind;
    void Bind(const std::string& name, const Value& value) override;
    void RefuseUnlessAction() override;
    void Run() override;
    std::shared_ptr<RecordSet> ReadRows(std::int32_t most = kAllRows) override;
    void ForEachRow(const std::function<void()>& take) override;
    void AskAhead() override;
    [[nodiscard]] CellKind KindAt(int column) const override;
    [[nodiscard]] std::int64_t Int64At(int column) const override;
    [[nodiscard]] double RealAt(int column) const override;
    [[nodiscard]] std::string_view TextAt(int column) const override;
    [[nodiscard]] std::optional<DateTime> StoredDateAt(int column) const override;

private:
    void RefuseMissingParameters() const;
    [[nodiscard]] ServerCommand Command() const;
    [[nodiscard]] ServerResult Ask(Intent intent);
    void AskForRows();
    [[nodiscard]] bool IsAtRow() const { return m_row < m_rows->RowCount(); }
    void GoToNextRow();

    PostgresEngine& m_engine;
    ServerText m_text;
    std::vector<ServerValue> m_values;
    std::vector<bool> m_assigned; // whether each parameter has a value
    Usage m_usage;
    std::int64_t m_ahead = 0;           // number of the question whose answer is on its way, 0 without one
    std::optional<ServerResult> m_rows; // rows of the answer that is being read, or the one row that came last
    int m_row = 0;                      // the next row, or the one at which ForEachRow stands
};

} // namespace ptk
