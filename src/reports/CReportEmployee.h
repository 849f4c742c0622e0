// The full records of all employees of a list.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CEmployeeList;

class CReportEmployee final : public Report
{
public:
    explicit CReportEmployee(ReportContext context);

    // False with 705, 503, 701; with 710 an empty entry of the list was left out.
    bool GenerateReport(const std::shared_ptr<CEmployeeList>& theemployeelist);

private:
    bool WriteEmployees(CEmployeeList& theemployeelist);
};

} // namespace ptk
