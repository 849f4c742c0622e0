#include "reports/CReportEmployee.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

namespace ptk {

namespace {

constexpr ReportColumn kEmployeeColumns[] = {
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

ReportRow EmployeeRowOf(const CEmployee& employee)
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

void AddEmployee(ReportDocument& document, CEmployee& employee)
{
    document.BeginGroup();
    document.Add(employee.ToString());
    document.AddRule();
    document.Add("");
    document.table.rows.push_back(EmployeeRowOf(employee));
}

} // namespace

bool CReportEmployee::GenerateReport(const std::shared_ptr<CEmployeeList>& theemployeelist)
{
    return AtEdge([&] {
        if (theemployeelist == nullptr) {
            return Refuse(report::NoEmployeeList);
        }
        if (!Open("", std::string(Entry().fileName))) {
            return false;
        }
        Body().Add("");
        Body().table.columns = kEmployeeColumns;
        for (std::int32_t i = 1; i <= theemployeelist->Count(); ++i) {
            if (const auto employee = theemployeelist->Item(i)) {
                AddEmployee(Body(), *employee);
            } else {
                Body().Fail(report::NotGenerated);
            }
        }
        return Publish();
    });
}

} // namespace ptk
