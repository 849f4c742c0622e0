#include "store/RowReader.h"

#include "store/engine/RecordSet.h"

namespace ptk {

namespace {

constexpr const char* kEmployeeColumns[] = {"EmployeeID",
                                            "SSNumber",
                                            "FirstName",
                                            "LastName",
                                            "Address",
                                            "Address2",
                                            "City",
                                            "State",
                                            "ZipCode",
                                            "Phone",
                                            "EmployeeNumber",
                                            "DateOfBirth",
                                            "HireDate",
                                            "ReleaseDate",
                                            "PayRate",
                                            "OvertimePayRate",
                                            "Active",
                                            "CompanyID",
                                            "AutoDeduct",
                                            "AutoDeductLunchLength",
                                            "AutoDeductBreakLength",
                                            "Password"};

constexpr const char* kCompanyColumns[] = {"CompanyID", "Name",    "Address1", "Address2", "City",
                                           "State",     "ZipCode", "Phone",    "Fax",      "FederalTaxID"};

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

std::span<const char* const> EmployeeColumns()
{
    return kEmployeeColumns;
}

std::span<const char* const> CompanyColumns()
{
    return kCompanyColumns;
}

RowReader::RowReader(const RecordSet& rows, std::span<const char* const> columns) : m_rows(rows)
{
    for (const char* column : columns) {
        m_columns.push_back(rows.Column(column));
    }
}

// Keys, rates and lengths below one mean that nothing was ever entered.
template <typename Number>
void RowReader::Positive(Number& field)
{
    const std::size_t column = *m_next++;
    Number value{};
    if (!m_rows.IsNull(column)) {
        ReadAt(m_rows, column, value);
    }
    if (value > 0) {
        field = value;
    }
}

void RowReader::Text(std::string& field)
{
    const std::size_t column = *m_next++;
    if (!m_rows.IsNull(column)) {
        field = m_rows.TextAt(column);
    }
}

void RowReader::Date(DateTime& field)
{
    const std::size_t column = *m_next++;
    if (!m_rows.IsNull(column)) {
        field = m_rows.DateTimeAt(column);
    }
}

void RowReader::Flag(bool& field)
{
    field = m_rows.BooleanAt(*m_next++);
}

// In the order of kEmployeeColumns.
EmployeeRow RowReader::ReadEmployee()
{
    EmployeeRow row;
    Start();
    Positive(row.EmployeeID);
    Text(row.SSN);
    Text(row.FirstName);
    Text(row.LastName);
    Text(row.Address1);
    Text(row.Address2);
    Text(row.City);
    Text(row.State);
    Text(row.ZipCode);
    Text(row.Phone);
    if (const std::size_t number = *m_next++; !m_rows.IsNull(number)) {
        row.EmployeeNumber = m_rows.Int32At(number);
    }
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

// In the order of kCompanyColumns.
CompanyRow RowReader::ReadCompany()
{
    CompanyRow row;
    Start();
    Positive(row.CompanyID);
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

} // namespace ptk
