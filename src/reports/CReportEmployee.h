// The full records of all employees of a list.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CReportEmployee final : public Report
{
public:
    explicit CReportEmployee(ReportContext context) : Report(ReportKind::Employee, std::move(context)) {}

    // False with 705, 503, 701, or with 710 where an empty entry of the list was left out.
    bool GenerateReport(const std::shared_ptr<CEmployeeList>& theemployeelist);
    bool Generate(const ReportRequest& request) override { return GenerateReport(request.employees); }
};

} // namespace ptk
