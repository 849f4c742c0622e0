#include "store/whole/DatabaseInspector.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

namespace ptk {

void DatabaseInspector::ReportEach(const std::string& query, const char* problem)
{
    for (const auto rows = m_engine.Prepare(query)->ReadRows(); !rows->EndOfFile(); rows->MoveNext()) {
        m_check.problems.push_back(fmt::format(fmt::runtime(problem), rows->TextAt(0)));
    }
}

DatabaseInspector::Declarations DatabaseInspector::ColumnsOf(const std::string& table) const
{
    Declarations columns;
    const auto rows = m_engine.Prepare(fmt::format(fmt::runtime(m_words.columns), table))->ReadRows();
    for (; !rows->EndOfFile(); rows->MoveNext()) {
        columns.emplace(LowerCase(rows->TextAt(0)), rows->TextAt(1));
    }
    return columns;
}

void DatabaseInspector::CheckColumns(const std::string& table, std::span<const StoredColumn> columns)
{
    const Declarations declared = ColumnsOf(table);
    if (declared.empty()) {
        m_missing.insert(table);
    }
    for (const StoredColumn& column : columns) {
        const char* const type = m_words.typeOf(column.kind);
        const auto found = declared.find(LowerCase(column.name));
        if (found == declared.end()) {
            Report("There is no column {}.{}.", table, column.name);
            m_incomplete.insert(table);
        } else if (LowerCase(found->second) != LowerCase(type)) {
            Report("The column {}.{} is {}, not {}.", table, column.name, found->second, type);
        }
    }
}

// A missing table has been reported by its columns.
std::int32_t DatabaseInspector::Count(const char* table) const
{
    if (m_missing.contains(table)) {
        return 0;
    }
    try {
        return NarrowToInt32(m_engine.NumberFrom(fmt::format("SELECT COUNT(*) FROM {}", table)));
    } catch (const Failure&) {
        if (!m_words.mayBeDamaged) {
            throw;
        }
        return 0;
    }
}

void DatabaseInspector::CountRecords()
{
    m_check.companies = Count("Company");
    m_check.employees = Count("Employee");
    m_check.timeRecords = Count("TimeRecord");
}

bool DatabaseInspector::RequireOneRow(const char* table)
{
    const std::int32_t rows = Count(table);
    if (rows != 1) {
        Report("The table {} has {} rows, not 1.", table, rows);
    }
    return rows == 1;
}

void DatabaseInspector::CheckLimits()
{
    if (!LacksColumns("_CheckLimits") && m_engine.NumberFrom(m_words.uselessLimits) != 0) {
        Report("The table _CheckLimits holds a value of no use: the check takes its own instead.");
    }
}

void DatabaseInspector::CheckClosings()
{
    if (!LacksColumns("_Payday")) {
        m_rows.CheckClosings();
    }
}

void DatabaseInspector::CheckRows()
{
    m_rows.TryActions();
    m_rows.CheckRows(m_incomplete);
}

} // namespace ptk
