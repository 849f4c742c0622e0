// Reads the rows of the program's tables into plain rows, each column by its rule.
#pragma once

#include "store/engine/StoredTable.h"
#include "store/rows/Rows.h"

#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

namespace ptk {

class RecordSet;

// The columns that the program reads of a table, in the table's order.
struct TableColumns
{
    const char* table;
    std::vector<const StoredColumn*> columns; // the first is the key, where there is one; people are told a row by it
    bool hasKey;
};

[[nodiscard]] const TableColumns& EmployeeTable();
[[nodiscard]] const TableColumns& CompanyTable();
[[nodiscard]] const TableColumns& TimeRecordTable();
[[nodiscard]] const TableColumns& OptionsTable();

// Reads the current row of a record set column by column. A field whose column is null, or not greater than zero where only that has a
// meaning, keeps its default. What cannot be read raises 94 (null), 13 (no such meaning) or 6 (does not fit), in words that name the row,
// the column and the value: "Employee 40: AutoDeductLunchLength is 70000 (Overflow)".
class RowReader
{
public:
    // Both arguments must outlive the reader. Raises Failure 9 for a missing column.
    RowReader(const RecordSet& rows, const TableColumns& columns);

    // For the check of a file: what cannot be read, such as a date in any other form than the stored one, is added to `found` instead of
    // being raised, and so is what can be read but is never of use: missing times of a shift, keys below 1.
    RowReader(const RecordSet& rows, const TableColumns& columns, std::vector<std::string>& found);

    EmployeeRow ReadEmployee();
    CompanyRow ReadCompany();

    // Reads a time record; its state is Unchanged.
    TimeRecordRow ReadTimeRecord();

    // Reads the options into `row`. Nothing may be null; what was read before a failure stays in the row.
    void ReadOptions(OptionsRow& row);

private:
    template <typename Reading>
    void Take(const Reading& read);
    template <typename Number>
    void Positive(Number& field, const char* doubt = nullptr);
    void Key(std::int32_t& field);
    void Read(std::int32_t& field);
    void Read(std::int16_t& field) { Positive(field); }
    void Read(float& field) { Positive(field); }
    void Read(std::string& field);
    void Read(DateTime& field);
    void Read(bool& field);
    template <typename Row, typename... T>
    Row ReadFields(const std::tuple<RowField<Row, T>...>& fields);
    [[nodiscard]] ColumnRule Rule() const { return m_table.columns[m_next]->rule; } // of the next column
    void Doubt(const char* why) const;
    [[nodiscard]] std::string Place(std::size_t column, const std::string& why) const;

    const RecordSet& m_rows;
    const TableColumns& m_table;
    std::vector<std::size_t> m_columns; // the record set's ordinals of the table's columns
    std::size_t m_next = 0;
    std::vector<std::string>* m_found = nullptr;
};

} // namespace ptk
