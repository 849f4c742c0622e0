#include "store/rows/RowReader.h"

#include "platform/Failure.h"
#include "store/engine/RecordSet.h"

#include <fmt/format.h>

namespace ptk {

namespace {

TableColumns ReadOf(const char* name)
{
    const StoredTable& table = StoredTableOf(name);
    TableColumns read{table.name, {}, table.hasKey};
    for (const StoredColumn& column : table.columns) {
        if (column.rule != ColumnRule::Unread) {
            read.columns.push_back(&column);
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
    m_columns.reserve(columns.columns.size());
    for (const StoredColumn* column : columns.columns) {
        m_columns.push_back(rows.Column(column->name));
    }
}

RowReader::RowReader(const RecordSet& rows, const TableColumns& columns, std::vector<std::string>& found) : RowReader(rows, columns)
{
    m_found = &found;
}

// Where the value stands, in words: "Employee 40: AutoDeductLunchLength is 70000 (Overflow)".
std::string RowReader::Place(std::size_t column, const std::string& why) const
{
    return fmt::format("{}{}: {} is {} ({})", m_table.table, m_table.hasKey ? ' ' + m_rows.TextToShow(m_columns.front()) : "",
                       m_table.columns[column]->name, m_rows.TextToShow(m_columns[column]), why);
}

// Raises a doubt about a value that the program reads without a complaint; only the check of a file raises it.
void RowReader::Doubt(const char* why) const
{
    if (m_found != nullptr) {
        throw Failure(failure::TypeMismatch, "PTK", why);
    }
}

// Reads the next column; a failure gets the words that lead to the value.
template <typename Reading>
void RowReader::Take(const Reading& read)
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

void RowReader::Read(std::int32_t& field)
{
    if (Rule() != ColumnRule::AnyNumber) {
        return Positive(field);
    }
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            field = m_rows.Int32At(column);
        }
    });
}

void RowReader::Read(std::string& field)
{
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            field = m_rows.TextAt(column);
        }
    });
}

// A missing time of a shift reads as not set, but the search for a period's records passes it over.
void RowReader::Read(DateTime& field)
{
    const bool isOfShift = Rule() == ColumnRule::Moment;
    Take([&](std::size_t column) {
        if (!m_rows.IsNull(column)) {
            field = m_rows.DateTimeAt(column);
        } else if (isOfShift) {
            Doubt("a time that is not set is stored as 1899-12-30 00:00:00");
        }
    });
}

void RowReader::Read(bool& field)
{
    Take([&](std::size_t column) { field = m_rows.BooleanAt(column); });
}

template <typename Row, typename... T>
Row RowReader::ReadFields(const std::tuple<RowField<Row, T>...>& fields)
{
    Row row;
    m_next = 0;
    std::apply([&](auto key, auto... each) { Key(row.*key.field), (Read(row.*each.field), ...); }, fields);
    return row;
}

EmployeeRow RowReader::ReadEmployee()
{
    return ReadFields(kEmployeeFields);
}

CompanyRow RowReader::ReadCompany()
{
    return ReadFields(kCompanyFields);
}

TimeRecordRow RowReader::ReadTimeRecord()
{
    TimeRecordRow row = ReadFields(kTimeRecordFields);
    row.ObjectState = state::Unchanged;
    return row;
}

// Reads the columns in the order of the table.
void RowReader::ReadOptions(OptionsRow& row)
{
    m_next = 0;
    Take([&](std::size_t column) { row.ProgramName = m_rows.Field(column).ToText(); });
    Take([&](std::size_t column) { row.ProgramVersion = m_rows.Field(column).ToText(); });
    Take([&](std::size_t column) { row.PeriodLength = m_rows.Int16At(column); });
    Take([&](std::size_t column) { row.AutoShiftStartTime = m_rows.DateTimeAt(column); });
    Take([&](std::size_t column) { row.AutoShiftEndTime = m_rows.DateTimeAt(column); });
}

} // namespace ptk
