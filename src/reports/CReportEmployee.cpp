#include "reports/CReportEmployee.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "reports/EmployeeRecords.h"

namespace ptk {

namespace {

void AddEmployee(ReportDocument& document, CEmployee& employee)
{
    document.BeginGroup();
    document.Add(employee.ToString());
    document.AddRule();
    document.Add("");
    document.table.rows.push_back(EmployeeRecord(employee));
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
        Body().table.columns = EmployeeRecordColumns();
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
