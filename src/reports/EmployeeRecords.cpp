#include "reports/EmployeeRecords.h"

#include "model/CEmployee.h"

namespace ptk {

namespace {

constexpr ReportColumn kRecordColumns[] = {
    {"Employee Number", CellType::WholeNumber},
    {"First Name", CellType::Text},
    {"Last Name", CellType::Text},
    {"Social Security Number", CellType::Text},
    {"Address 1", CellType::Text},
    {"Address 2", CellType::Text},
    {"City", CellType::Text},
    {"State", CellType::Text},
    {"ZIP Code", CellType::Text},
    {"Phone", CellType::Text},
    {"Date Of Birth", CellType::Date},
    {"Active", CellType::Boolean},
    {"Hire Date", CellType::Date},
    {"Release Date", CellType::Date},
    {"Regular Pay Rate", CellType::Rate},
    {"Overtime Pay Rate", CellType::Rate},
};

Value Known(DateTime date)
{
    return date.IsZero() ? Value() : Value(date);
}

} // namespace

std::span<const ReportColumn> EmployeeRecordColumns()
{
    return kRecordColumns;
}

ReportRow EmployeeRecord(const CEmployee& employee)
{
    return {employee.EmployeeNumber(),
            employee.FirstName(),
            employee.LastName(),
            employee.SSN(),
            employee.Address1(),
            employee.Address2(),
            employee.City(),
            employee.State(),
            employee.ZipCode(),
            employee.Phone(),
            Known(employee.DateOfBirth()),
            employee.EmployeeActive(),
            Known(employee.HireDate()),
            Known(employee.ReleaseDate()),
            employee.PayRate(),
            employee.OvertimePayRate()};
}

} // namespace ptk
