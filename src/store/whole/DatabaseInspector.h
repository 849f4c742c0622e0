// What a database's check looks at whatever keeps the database: the columns of its tables, how many rows there are, and what they hold.
#pragma once

#include "store/engine/StoredTable.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/RowChecker.h"

#include <cstdint>
#include <fmt/format.h>
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

    // A query for the name of each column of a table {} and how it is declared; it answers no rows for a table that is not there.
    const char* columns;

    // A query for the number of rows of _CheckLimits that hold a useless value.
    const char* uselessLimits;

    // Whether a table that cannot be counted counts as empty, so that the check of a damaged file goes on.
    bool mayBeDamaged;
};

// Turns each problem that it finds into one sentence of the check. A table that lacks a column is looked at no further.
class DatabaseInspector
{
public:
    // REQUIRES: the engine and the words outlive the inspector.
    DatabaseInspector(Engine& engine, const InspectionWords& words) : m_engine(engine), m_words(words) {}

    template <typename... Values>
    void Report(fmt::format_string<Values...> text, Values&&... values)
    {
        m_check.problems.push_back(fmt::format(text, std::forward<Values>(values)...));
    }

    // Reports `problem` for each row of a query in the engine's own words, with the row's first column in the place of {}.
    void ReportEach(const std::string& query, const char* problem);

    // Reports columns that are missing or are declared as something else, in the order of `columns`. A table may have further ones.
    void CheckColumns(const std::string& table, std::span<const StoredColumn> columns);

    // Counts the companies, employees and time records, which are part of the check's answer.
    void CountRecords();

    // Answers false, and reports it, where the table has no row or several.
    bool RequireOneRow(const char* table);

    // These three look at the limits that the check of cards takes, at the days of closed pay periods, and at every row and the stored
    // queries. They pass over tables that lack a column.
    void CheckLimits();
    void CheckClosings();
    void CheckRows();

    [[nodiscard]] bool LacksColumns(const char* table) const { return m_incomplete.contains(table); }
    [[nodiscard]] std::vector<std::string>& Problems() { return m_check.problems; }
    [[nodiscard]] DatabaseCheck Take() { return std::move(m_check); }

private:
    using Declarations = std::map<std::string, std::string, std::less<>>; // by the name of the column in lower case

    [[nodiscard]] Declarations ColumnsOf(const std::string& table) const;
    [[nodiscard]] std::int32_t Count(const char* table) const;

    Engine& m_engine;
    const InspectionWords& m_words;
    DatabaseCheck m_check;
    RowChecker m_rows{m_engine, m_check.problems};
    std::set<std::string> m_incomplete; // tables that lack a column
    std::set<std::string> m_missing;    // those that lack all of them
};

} // namespace ptk
