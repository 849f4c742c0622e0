// Names, addresses and telephone numbers of all employees of a list in two columns.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CReportPhoneBook final : public Report
{
public:
    explicit CReportPhoneBook(ReportContext context) : Report(ReportKind::PhoneBook, std::move(context)) {}

    // False with 704, 503, 701, or with 710 where an empty entry of the list ended the report.
    bool GenerateReport(const std::shared_ptr<CEmployeeList>& phonebooklist);
    bool Generate(const ReportRequest& request) override { return GenerateReport(request.employees); }
};

} // namespace ptk
