// Takes the rows of the listing queries into plain rows, each column by its rule.
#pragma once

#include "store/Rows.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ptk {

class RecordSet;

// Reads the current row of a record set column by column, in the order of the names it was made with. A field whose column is null, or not
// greater than zero where only that has a meaning, keeps its default.
class RowReader
{
public:
    RowReader(const RecordSet& rows, std::span<const char* const> columns); // raises Failure 9 for a missing column

    EmployeeRow ReadEmployee(); // raises 94 when Active or AutoDeduct is null
    CompanyRow ReadCompany();

private:
    void Start() { m_next = m_columns.begin(); }
    template <typename Number>
    void Positive(Number& field);
    void Text(std::string& field);
    void Date(DateTime& field);
    void Flag(bool& field);

    const RecordSet& m_rows;
    std::vector<std::size_t> m_columns;
    std::vector<std::size_t>::const_iterator m_next;
};

std::span<const char* const> EmployeeColumns();
std::span<const char* const> CompanyColumns(); // the web address deliberately is not among them: it is written but never read back

} // namespace ptk
