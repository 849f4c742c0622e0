#include "store/postgres/PostgresStatement.h"

#include "platform/text/Text.h"
#include "store/engine/RecordSetBuilder.h"
#include "store/engine/StoredDate.h"
#include "store/postgres/line/ServerFailure.h"
#include "store/postgres/PostgresEngine.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <utility>

namespace ptk {

namespace {

// The server's numbers for its types, which never change.
namespace type {
constexpr Oid kBoolean = 16;
constexpr Oid kBytes = 17;
constexpr Oid kInt64 = 20;
constexpr Oid kInt16 = 21;
constexpr Oid kInt32 = 23;
constexpr Oid kText = 25;
constexpr Oid kSingle = 700;
constexpr Oid kDouble = 701;
constexpr Oid kMoment = 1114;
constexpr Oid kDecimal = 1700;
} // namespace type

// The type with which a file declares such a column.
const char* Declaration(Oid of)
{
    switch (of) {
    case type::kBoolean:
        return "BOOLEAN";
    case type::kInt16:
    case type::kInt32:
    case type::kInt64:
        return "INTEGER";
    case type::kSingle:
        return "SINGLE";
    case type::kMoment:
        return "DATETIME";
    case type::kText:
        return "TEXT";
    default:
        return "";
    }
}

// Reads infinities, and what is no number, as such.
double RealOf(std::string_view text)
{
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::int64_t IntegerOf(std::string_view text)
{
    std::int64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool IsTrue(std::string_view text)
{
    return text == "t";
}

// Writes a value of each kind as the server reads it.
struct ParameterText
{
    ServerValue operator()(std::monostate) const { return std::nullopt; }
    ServerValue operator()(bool value) const { return value ? "1" : "0"; }
    ServerValue operator()(std::int16_t value) const { return std::to_string(value); }
    ServerValue operator()(std::int32_t value) const { return std::to_string(value); }
    ServerValue operator()(float value) const { return SingleText(value); }
    ServerValue operator()(double value) const { return fmt::format("{}", value); }
    ServerValue operator()(DateTime value) const { return StoredText(value); }
    ServerValue operator()(const std::string& value) const
    {
        if (value.find('\0') != std::string::npos) {
            throw ServerFailure(engine::Constraint, "a server stores no text with a zero byte in it");
        }
        return value;
    }
};

void AddCell(RecordSet::Builder& rows, const ServerResult& from, int row, int column)
{
    if (from.IsNull(row, column)) {
        return rows.AddNull();
    }
    const std::string_view text = from.Text(row, column);
    switch (from.TypeOf(column)) {
    case type::kBoolean:
        return rows.AddInteger(IsTrue(text) ? 1 : 0);
    case type::kInt16:
    case type::kInt32:
    case type::kInt64:
        return rows.AddInteger(IntegerOf(text));
    case type::kSingle:
    case type::kDouble:
    case type::kDecimal:
        return rows.AddReal(RealOf(text));
    case type::kBytes:
        return rows.AddBinary();
    default:
        return rows.AddText(text);
    }
}

} // namespace

PostgresStatement::PostgresStatement(PostgresEngine& engine, std::string_view sql, Usage usage)
    : m_engine(engine), m_text(TranslateForServer(sql)), m_values(m_text.parameters.size()), m_assigned(m_text.parameters.size()),
      m_usage(usage)
{
    if (!HoldsStatement(sql)) {
        throw ServerFailure(engine::Refused, "there is no statement to run");
    }
}

void PostgresStatement::Bind(const std::string& name, const Value& value)
{
    const auto found = std::find(m_text.parameters.begin(), m_text.parameters.end(), name);
    if (found == m_text.parameters.end()) {
        throw ServerFailure(engine::Parameter, "there is no parameter " + name);
    }
    const auto index = static_cast<std::size_t>(found - m_text.parameters.begin());
    m_values[index] = std::visit(ParameterText{}, value.Get());
    m_assigned[index] = true;
    m_ahead = 0;
}

void PostgresStatement::RefuseMissingParameters() const
{
    const auto missing = std::find(m_assigned.begin(), m_assigned.end(), false);
    if (missing != m_assigned.end()) {
        throw ServerFailure(engine::Parameter, fmt::format("parameter {} has no value", missing - m_assigned.begin() + 1));
    }
}

void PostgresStatement::RefuseUnlessAction()
{
    RefuseMissingParameters();
    if (m_engine.Ask({m_text.sql, {}, false, true}).ColumnCount() != 0) {
        throw ServerFailure(engine::Refused, "the statement only answers rows");
    }
}

void PostgresStatement::AskAhead()
{
    RefuseMissingParameters();
    m_ahead = m_engine.AskAhead({m_text.sql, m_values, true, false});
}

// Takes the answer that was asked for ahead, or asks now. The statement is kept prepared from then on, since it may be run again.
ServerResult PostgresStatement::Ask(Intent intent)
{
    RefuseMissingParameters();
    if (m_usage == Usage::RowByRow) {
        return m_engine.BeginRows(Command());
    }
    if (auto answer = m_engine.TakeAhead(std::exchange(m_ahead, 0))) {
        return std::move(*answer);
    }
    ServerResult result = m_engine.Ask(Command(), intent);
    m_usage = Usage::Often;
    return result;
}

ServerCommand PostgresStatement::Command() const
{
    return {m_text.sql, m_values, m_usage == Usage::Often, false};
}

// A change that the server refuses because the transaction only reads is refused in the program's own words.
void PostgresStatement::AskForRows()
{
    try {
        m_rows = Ask(Intent::Read);
        m_row = 0;
        if (m_rows->HasRows()) {
            return;
        }
        m_rows.reset();
    } catch (const ServerFailure& failure) {
        if (!failure.TakesNoChanges() || m_engine.IsWriting()) {
            throw;
        }
    }
    throw ServerFailure(engine::Refused, "the statement answers no rows or changes the database");
}

void PostgresStatement::Run()
{
    RefuseMissingParameters();
    if (m_engine.Post(Command())) {
        m_usage = Usage::Often;
        return;
    }
    if (Ask(Intent::Change).HasRows()) {
        throw ServerFailure(engine::Refused, "the statement only answers rows");
    }
}

void PostgresStatement::ForEachRow(const std::function<void()>& take)
{
    for (AskForRows(); IsAtRow(); GoToNextRow()) {
        take();
    }
    m_rows.reset();
}

void PostgresStatement::GoToNextRow()
{
    ++m_row;
    if (m_rows->IsOneOfMany()) {
        m_rows = m_engine.NextRow();
        m_row = 0;
    }
}

CellKind PostgresStatement::KindAt(int column) const
{
    if (m_rows->IsNull(m_row, column)) {
        return CellKind::Null;
    }
    switch (m_rows->TypeOf(column)) {
    case type::kBoolean:
    case type::kInt16:
    case type::kInt32:
    case type::kInt64:
    case type::kSingle:
    case type::kDouble:
    case type::kDecimal:
        return CellKind::Number;
    case type::kBytes:
        return CellKind::Bytes;
    default:
        return CellKind::Text;
    }
}

std::int64_t PostgresStatement::Int64At(int column) const
{
    const std::string_view text = TextAt(column);
    return KindAt(column) == CellKind::Number ? IntegerOf(text) : 0;
}

double PostgresStatement::RealAt(int column) const
{
    return KindAt(column) == CellKind::Number ? RealOf(TextAt(column)) : 0;
}

std::string_view PostgresStatement::TextAt(int column) const
{
    const std::string_view text = m_rows->Text(m_row, column);
    if (m_rows->TypeOf(column) == type::kBoolean && !text.empty()) {
        return IsTrue(text) ? "1" : "0";
    }
    return text;
}

std::optional<DateTime> PostgresStatement::StoredDateAt(int column) const
{
    return FromStoredText(m_rows->Text(m_row, column));
}

std::shared_ptr<RecordSet> PostgresStatement::ReadRows(std::int32_t most)
{
    if (!m_rows) {
        AskForRows();
    }
    RecordSet::Builder rows;
    for (int column = 0; column < m_rows->ColumnCount(); ++column) {
        rows.AddColumn(Library().fname(m_rows->Get(), column), Declaration(m_rows->TypeOf(column)));
    }
    std::int32_t read = 0;
    for (; read < most && IsAtRow(); GoToNextRow(), ++read) {
        for (int column = 0; column < m_rows->ColumnCount(); ++column) {
            AddCell(rows, *m_rows, m_row, column);
        }
        rows.EndRow();
    }
    if (read < most) {
        m_rows.reset();
    }
    return rows.Finish();
}

} // namespace ptk
