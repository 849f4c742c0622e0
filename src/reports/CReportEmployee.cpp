#include "reports/CReportEmployee.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

namespace ptk {

CReportEmployee::CReportEmployee(ReportContext context)
    : Report({ReportKind::Employee, "Employee Records", &ReportOwner::UnloadEmployeeReport}, std::move(context), "employee_records.txt")
{
}

bool CReportEmployee::GenerateReport(const std::shared_ptr<CEmployeeList>& theemployeelist)
{
    return Generate([&] {
        if (theemployeelist == nullptr) {
            return Fail(report::NoEmployeeList);
        }
        return Write([&] { return WriteEmployees(*theemployeelist); });
    });
}

bool CReportEmployee::WriteEmployees(CEmployeeList& theemployeelist)
{
    WriteLine("");
    bool complete = true;
    for (std::int32_t i = 1; i <= theemployeelist.Count(); ++i) {
        const auto employee = theemployeelist.Item(i);
        if (employee == nullptr) {
            complete = Fail(report::NotGenerated);
            continue;
        }
        WriteLine(employee->ToString());
        WriteRule();
        WriteLine("");
    }
    return complete;
}

} // namespace ptk
