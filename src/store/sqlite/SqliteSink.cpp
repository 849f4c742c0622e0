#include "store/sqlite/SqliteSink.h"

#include "store/sqlite/EngineFailure.h"

#include <fmt/format.h>
#include <sqlite3.h>

#include <cmath>
#include <string>

namespace ptk {

namespace {

constexpr const char* kNoNumber = "no number that a file could hold";

std::string InsertText(const StoredTable& table)
{
    std::string names;
    std::string values;
    for (const StoredColumn& column : table.columns) {
        names += fmt::format("{}{}", names.empty() ? "" : ", ", column.name);
        values += values.empty() ? "?" : ", ?";
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", table.name, names, values);
}

struct ColumnBinder
{
    sqlite3_stmt* statement;
    int index; // from 1

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
    int operator()(std::int64_t value) const { return sqlite3_bind_int64(statement, index, value); }
    int operator()(double value) const
    {
        if (std::isnan(value)) {
            throw Unfit{index - 1, kNoNumber}; // it would be stored as a null
        }
        return sqlite3_bind_double(statement, index, value);
    }

    // The text is not copied: the row is written while the text is still there.
    int operator()(std::string_view value) const
    {
        return sqlite3_bind_text64(statement, index, value.data(), value.size(), SQLITE_STATIC, SQLITE_UTF8);
    }
};

} // namespace

void SqliteSink::Ending::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement); // answers the failure of the last step, which was raised there
}

SqliteSink::SqliteSink(sqlite3* database, const StoredTable& table) : m_database(database), m_table(table)
{
    sqlite3_stmt* insert = nullptr;
    RaiseUnlessDone(database, sqlite3_prepare_v2(database, InsertText(table).c_str(), -1, &insert, nullptr));
    m_insert.reset(insert);
}

void SqliteSink::Add(const Statement& from)
{
    int place = 0;
    for (const StoredColumn& column : m_table.columns) {
        const FitValue value = FitInto(column, from, place);
        RaiseUnlessDone(m_database, std::visit(ColumnBinder{m_insert.get(), ++place}, value));
    }
    const int code = sqlite3_step(m_insert.get());
    if (code != SQLITE_DONE) {
        throw EngineFailure(code, m_database);
    }
    sqlite3_reset(m_insert.get());
}

} // namespace ptk
