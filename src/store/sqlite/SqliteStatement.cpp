#include "store/sqlite/SqliteStatement.h"

#include "platform/text/Text.h"
#include "store/engine/RecordSetBuilder.h"
#include "store/engine/StoredDate.h"
#include "store/sqlite/EngineFailure.h"
#include "store/sqlite/StatementCache.h"

#include <algorithm>
#include <fmt/format.h>
#include <sqlite3.h>

namespace ptk {

namespace {

sqlite3_stmt* Prepare(sqlite3* database, std::string_view& sql)
{
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    RaiseUnlessDone(database, sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, &rest));
    sql.remove_prefix(static_cast<std::size_t>(rest - sql.data()));
    return statement;
}

// What may follow a statement is white space and comments, which prepare to nothing.
bool HoldsStatement(sqlite3* database, std::string_view rest)
{
    if (rest.find_first_not_of(" \t\r\n\f") == std::string_view::npos) {
        return false;
    }
    sqlite3_stmt* second = Prepare(database, rest);
    sqlite3_finalize(second);
    return second != nullptr || !rest.empty();
}

// Prepares the one statement that the text holds.
sqlite3_stmt* PrepareOnly(sqlite3* database, std::string_view sql)
{
    std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement(Prepare(database, sql), sqlite3_finalize);
    if (statement == nullptr) {
        throw EngineFailure(SQLITE_ERROR, "there is no statement to run");
    }
    if (HoldsStatement(database, sql)) {
        throw EngineFailure(SQLITE_ERROR, "there is more text after the statement");
    }
    return statement.release();
}

// Binds a value of each kind.
struct ParameterBinder
{
    sqlite3_stmt* statement;
    int index;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
    int operator()(bool value) const { return sqlite3_bind_int(statement, index, value ? 1 : 0); }
    int operator()(std::int16_t value) const { return sqlite3_bind_int(statement, index, value); }
    int operator()(std::int32_t value) const { return sqlite3_bind_int(statement, index, value); }
    int operator()(double value) const { return sqlite3_bind_double(statement, index, value); }

    // Stores 12.3 and not 12.300000190734863, which other tools would show.
    int operator()(float value) const { return sqlite3_bind_double(statement, index, ToDouble(SingleText(value))); }
    int operator()(DateTime value) const { return (*this)(StoredText(value)); }
    int operator()(const std::string& value) const
    {
        return sqlite3_bind_text64(statement, index, value.data(), value.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    }
};

std::string_view TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

// Reads the value itself, which is quicker than by statement and column. Only one thread may do so, and only one uses a connection.
void AddCell(RecordSet::Builder& rows, sqlite3_value* value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
        return rows.AddNull();
    case SQLITE_INTEGER:
        return rows.AddInteger(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return rows.AddReal(sqlite3_value_double(value));
    case SQLITE_TEXT:
        return rows.AddText(TextOf(value));
    default:
        return rows.AddBinary();
    }
}

void AddColumns(RecordSet::Builder& rows, sqlite3_stmt* statement)
{
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        const char* declared = sqlite3_column_decltype(statement, column);
        rows.AddColumn(sqlite3_column_name(statement, column), declared == nullptr ? "" : declared);
    }
}

} // namespace

namespace {

// So few that the limits are looked at within seconds, even where each step makes the longest text that the engine allows.
constexpr int kStepsOfLook = 100;
constexpr std::int64_t kLooksOfMillion = 1'000'000 / kStepsOfLook;

} // namespace

// Stops the statement, while it lives, beyond so many steps or so much time, or when its watcher says so.
class SqliteStatement::Limit
{
public:
    explicit Limit(SqliteStatement& statement)
        : m_statement(statement), m_end(std::min(CoarseNow() + SqliteStatement::kMostTime, statement.m_end))
    {
        sqlite3_progress_handler(
            statement.m_database, kStepsOfLook, [](void* limit) { return static_cast<Limit*>(limit)->GoesOn() ? 0 : 1; }, this);
    }
    ~Limit() { sqlite3_progress_handler(m_statement.m_database, 0, nullptr, nullptr); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

    // Runs `take` for a row without counting that to the statement's time.
    void LeaveOut(const std::function<void()>& take)
    {
        const CoarseTime before = CoarseNow();
        take();
        m_end = std::min(m_end + (CoarseNow() - before), m_statement.m_end);
    }

private:
    bool GoesOn()
    {
        const bool isMillion = ++m_statement.m_looks % kLooksOfMillion == 0;
        if (m_statement.m_goesOn) {
            return !isMillion || m_statement.m_goesOn();
        }
        return m_statement.m_looks <= m_statement.m_mostSteps * kLooksOfMillion && CoarseNow() < m_end;
    }

    SqliteStatement& m_statement;
    CoarseTime m_end;
};

void SqliteStatement::Ending::operator()(sqlite3_stmt* statement) noexcept
{
    if (cache != nullptr) {
        return cache->Keep(std::move(sql), statement);
    }
    sqlite3_finalize(statement); // answers the failure of the last step, which was raised there
}

SqliteStatement::SqliteStatement(sqlite3* database, std::string_view sql, StatementCache* cache)
    : m_database(database), m_statement(nullptr, Ending{cache, std::string(sql)})
{
    if (cache != nullptr) {
        m_statement.reset(cache->Take(sql));
    }
    if (m_statement == nullptr) {
        m_statement.reset(PrepareOnly(database, sql));
    }
    m_assigned.resize(static_cast<std::size_t>(sqlite3_bind_parameter_count(m_statement.get())));
}

void SqliteStatement::Bind(const std::string& name, const Value& value)
{
    const int index = sqlite3_bind_parameter_index(m_statement.get(), (':' + name).c_str());
    if (index == 0) {
        throw EngineFailure(SQLITE_RANGE, "there is no parameter " + name);
    }
    RaiseUnlessDone(m_database, std::visit(ParameterBinder{m_statement.get(), index}, value.Get()));
    m_assigned[static_cast<std::size_t>(index) - 1] = true;
}

void SqliteStatement::RefuseMissingParameters() const
{
    for (std::size_t i = 0; i < m_assigned.size(); ++i) {
        if (!m_assigned[i]) {
            throw EngineFailure(SQLITE_RANGE, fmt::format("parameter {} has no value", i + 1));
        }
    }
}

bool SqliteStatement::Step()
{
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW) {
        return true;
    }
    if (code != SQLITE_DONE) {
        throw EngineFailure(code, m_database);
    }
    return false;
}

void SqliteStatement::Rewind()
{
    sqlite3_reset(m_statement.get()); // answers the failure of the last step, which was raised there
    m_looks = 0;
}

void SqliteStatement::RefuseUnlessAction()
{
    if (sqlite3_column_count(m_statement.get()) != 0) {
        throw EngineFailure(SQLITE_ERROR, "the statement only answers rows");
    }
    RefuseMissingParameters();
}

void SqliteStatement::Run()
{
    RefuseUnlessAction();
    const Limit limit(*this);
    Step();
    Rewind();
}

void SqliteStatement::RefuseUnlessRows() const
{
    if (sqlite3_column_count(m_statement.get()) == 0 || sqlite3_stmt_readonly(m_statement.get()) == 0) {
        throw EngineFailure(SQLITE_ERROR, "the statement answers no rows or changes the database");
    }
    RefuseMissingParameters();
}

void SqliteStatement::ForEachRow(const std::function<void()>& take)
{
    RefuseUnlessRows();
    Limit limit(*this);
    try {
        while (Step()) {
            limit.LeaveOut(take);
        }
    } catch (...) {
        Rewind();
        throw;
    }
    Rewind();
}

CellKind SqliteStatement::KindAt(int column) const
{
    switch (sqlite3_column_type(m_statement.get(), column)) {
    case SQLITE_NULL:
        return CellKind::Null;
    case SQLITE_TEXT:
        return CellKind::Text;
    case SQLITE_BLOB:
        return CellKind::Bytes;
    default:
        return CellKind::Number;
    }
}

std::string_view SqliteStatement::TextAt(int column) const
{
    return TextOf(sqlite3_column_value(m_statement.get(), column));
}

std::int64_t SqliteStatement::Int64At(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

double SqliteStatement::RealAt(int column) const
{
    return KindAt(column) == CellKind::Number ? sqlite3_column_double(m_statement.get(), column) : 0;
}

std::optional<DateTime> SqliteStatement::StoredDateAt(int column) const
{
    sqlite3_value* value = sqlite3_column_value(m_statement.get(), column);
    if (sqlite3_value_type(value) != SQLITE_TEXT) {
        return std::nullopt;
    }
    return FromStoredText(TextOf(value));
}

std::shared_ptr<RecordSet> SqliteStatement::ReadRows(std::int32_t most)
{
    RefuseUnlessRows();
    sqlite3_stmt* row = m_statement.get();
    RecordSet::Builder rows;
    const Limit limit(*this);
    bool isRow = most > 0 && Step(); // a kept statement learns only now of a table that somebody made anew with other columns
    const int columns = sqlite3_column_count(row);
    AddColumns(rows, row);
    for (std::int32_t count = 1; isRow; isRow = count++ < most && Step()) {
        for (int column = 0; column < columns; ++column) {
            AddCell(rows, sqlite3_column_value(row, column));
        }
        rows.EndRow();
    }
    return rows.Finish();
}

} // namespace ptk
