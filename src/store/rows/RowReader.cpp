#include "store/rows/RowReader.h"

#include "platform/Failure.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredTable.h"

#include <fmt/format.h>

namespace ptk {

namespace {

TableColumns ReadOf(const char* name)
{
    const StoredTable& table = StoredTableOf(name);
    TableColumns read{table.name, {}, table.hasKey};
    for (const StoredColumn& column : table.columns) {
        if (column.rule != ColumnRule::Unread) {
            read.names.push_back(column.name);
        }
    }
    return read;
}

void ReadAt(const RecordSet& rows, std::size_t column, std::int32_t& field)
{
    field = rows.Int32At(column);
}

void ReadAt(const RecordSet& rows, std::size_t column, std::int16_t& field)
{
    field = rows.Int16At(column);
}

void ReadAt(const RecordSet& rows, std::size_t column, float& field)
{
    field = rows.SingleAt(column);
}

} // namespace

const TableColumns& EmployeeTable()
{
    static const TableColumns kRead = ReadOf("Employee");
    return kRead;
}

const TableColumns& CompanyTable()
{
    static const TableColumns kRead = ReadOf("Company");
    return kRead;
}

const TableColumns& TimeRecordTable()
{
    static const TableColumns kRead = ReadOf("TimeRecord");
    return kRead;
}

const TableColumns& OptionsTable()
{
    static const TableColumns kRead = ReadOf("_System");
    return kRead;
}

RowReader::RowReader(const RecordSet& rows, const TableColumns& columns) : m_rows(rows), m_table(columns)
{
    m_columns.reserve(columns.names.size());
    for (const char* column : columns.names) {
        m_columns.push_back(rows.Column(column));
    }
}

RowReader::RowReader(const RecordSet& rows, const TableColumns& columns, std::vector<std::string>& found) : RowReader(rows, columns)
{
    m_found = &found;
}

// "Employee 40: AutoDeductLunchLength is 70000 (Overflow)".
std::string RowReader::Place(std::size_t column, const std::string& why) const
{
    return fmt::format("{}{}: {} is {} ({})", m_table.table, m_table.hasKey ? ' ' + m_rows.Shown(m_columns.front()) : "",
                       m_table.names[column], m_rows.Shown(m_columns[column]), why);
}

// Of what the program reads without noticing anything; only the check of a file does.
void RowReader::Doubt(const char* why) const
{
    if (m_found != nullptr) {
        throw Failure(failure::TypeMismatch, "PTK", why);
    }
}

// Reads the next column; a failure gets the words that lead to the value.
template <typename Read>
void RowReader::Take(const Read& read)
{
    const std::size_t column = m_next++;
    try {
        read(m_columns[column]);
    } catch (const Failure& failure) {
        if (m_rows.EndOfFile()) {
            throw;
        }
        const std::string text = Place(column, failure.Description());
        if (m_found == nullptr) {
            throw Failure(failure.Number(), failure.Source(), text);
        }
        m_found->push_back(text);
    }
}

// Keys, rates and lengths below one mean that nothing was ever entered.
template <typename Number>
void RowReader::Positive(Number& field, const char* doubt)
{
    Take([&](std::size_t column) {
        Number value{};
        if (!m_rows.IsNull(column)) {
            ReadAt(m_rows, column, value);
        }
        if (value > 0) {
            field = value;
        } else if (doubt != nullptr) {
            Doubt(doubt);
        }
    });
}

void RowReader::Key(std::int32_t& field)
{
    Positive(field, "not a key that the program can use");
}

void RowReader::Text(std::string& field)
{
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            field = m_rows.TextAt(column);
        }
    });
}

void RowReader::Date(DateTime& field, const char* doubtWhenNull)
{
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            field = m_rows.DateTimeAt(column);
        } else if (doubtWhenNull != nullptr) {
            Doubt(doubtWhenNull);
        }
    });
}

// A missing one reads as not set, but the search for a period's records passes it over.
void RowReader::ShiftTime(DateTime& field)
{
    Date(field, "a time that is not set is stored as 1899-12-30 00:00:00");
}

void RowReader::Flag(bool& field)
{
    Take([&](std::size_t column) { field = m_rows.BooleanAt(column); });
}

// In the order of the table.
EmployeeRow RowReader::ReadEmployee()
{
    EmployeeRow row;
    Start();
    Key(row.EmployeeID);
    Text(row.SSN);
    Text(row.FirstName);
    Text(row.LastName);
    Text(row.Address1);
    Text(row.Address2);
    Text(row.City);
    Text(row.State);
    Text(row.ZipCode);
    Text(row.Phone);
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            row.EmployeeNumber = m_rows.Int32At(column);
        }
    });
    Date(row.DateOfBirth);
    Date(row.HireDate);
    Date(row.ReleaseDate);
    Positive(row.PayRate);
    Positive(row.OvertimePayRate);
    Flag(row.EmployeeActive);
    Positive(row.CompanyID);
    Flag(row.AutoDeduct);
    Positive(row.AutoDeductLunchLength);
    Positive(row.AutoDeductBreakLength);
    Text(row.Password);
    return row;
}

// In the order of the table.
CompanyRow RowReader::ReadCompany()
{
    CompanyRow row;
    Start();
    Key(row.CompanyID);
    Text(row.CompanyName);
    Text(row.Address1);
    Text(row.Address2);
    Text(row.City);
    Text(row.State);
    Text(row.ZipCode);
    Text(row.Phone);
    Text(row.Fax);
    Text(row.FederalTaxID);
    return row;
}

// In the order of the table.
TimeRecordRow RowReader::ReadTimeRecord()
{
    TimeRecordRow row;
    Start();
    Key(row.TimeRecordID);
    Positive(row.EmployeeID);
    ShiftTime(row.StartTime);
    ShiftTime(row.EndTime);
    row.ObjectState = state::Unchanged;
    return row;
}

// In the order of the table.
void RowReader::ReadOptions(OptionsRow& row)
{
    Start();
    Take([&](std::size_t column) { row.ProgramName = m_rows.Field(column).ToText(); });
    Take([&](std::size_t column) { row.ProgramVersion = m_rows.Field(column).ToText(); });
    Take([&](std::size_t column) { row.PeriodLength = m_rows.Int16At(column); });
    Take([&](std::size_t column) { row.AutoShiftStartTime = m_rows.DateTimeAt(column); });
    Take([&](std::size_t column) { row.AutoShiftEndTime = m_rows.DateTimeAt(column); });
}

} // namespace ptk
