// What a database's check looks at whatever keeps the database: the columns of its tables, how many rows there are, and what they hold.
#pragma once

#include "store/engine/StoredTable.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/RowChecker.h"

#include <cstdint>
#include <fmt/format.h>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace ptk {

// What the check asks in an engine's own way.
struct InspectionWords
{
    const char* (*typeOf)(ColumnKind kind); // how a column of that kind is declared

    // Of a table {}: the name of each of its columns and how it is declared; no rows for a table that is not there.
    const char* columns;

    // How many rows of _CheckLimits hold a value of no use.
    const char* uselessLimits;

    // What cannot be counted counts as 0, and the check goes on.
    bool mayBeDamaged;
};

// Each problem that is found becomes one sentence of the check. What cannot be read because a column is missing is asked no further.
class DatabaseInspector
{
public:
    // Both outlive it.
    DatabaseInspector(Engine& engine, const InspectionWords& words) : m_engine(engine), m_words(words) {}

    template <typename... Values>
    void Report(fmt::format_string<Values...> text, Values&&... values)
    {
        m_check.problems.push_back(fmt::format(text, std::forward<Values>(values)...));
    }

    // One sentence for each row of a query in the engine's own words, `problem` with its first column for {}.
    void ReportEach(const std::string& query, const char* problem);

    // In the order of `columns`. Further columns may be there.
    void CheckColumns(const std::string& table, std::span<const StoredColumn> columns);

    // The companies, employees and time records, for the check to tell.
    void CountRecords();

    // False where it has none or several, which is reported.
    bool RequireOneRow(const char* table);

    // What the check of cards is told; the days of closed periods; every row, and the stored queries. Tables that lack a column are passed
    // over.
    void CheckLimits();
    void CheckClosings();
    void CheckRows();

    [[nodiscard]] bool LacksColumns(const char* table) const { return m_incomplete.contains(table); }
    [[nodiscard]] std::vector<std::string>& Problems() { return m_check.problems; }
    [[nodiscard]] DatabaseCheck Take() { return std::move(m_check); }

private:
    using Declarations = std::map<std::string, std::string, std::less<>>; // by the name of the column in lower case

    [[nodiscard]] Declarations ColumnsOf(const std::string& table) const;
    [[nodiscard]] std::int32_t Count(const std::string& table) const;

    Engine& m_engine;
    const InspectionWords& m_words;
    DatabaseCheck m_check;
    RowChecker m_rows{m_engine, m_check.problems};
    std::set<std::string> m_incomplete; // tables that lack a column
};

} // namespace ptk
