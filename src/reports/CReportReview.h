// The accountant's review: the pay of all employees of a list for one period, one after the other.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CDateRange;

class CReportReview final : public Report
{
public:
    explicit CReportReview(ReportContext context) : Report(ReportKind::Review, std::move(context)) {}

    // The title shows the end date as given. False with 603, 331, 503, 701. False with 710 where employees without a card were left out, as
    // Missing says; false with 711 where the user stopped and the rest is missing. The database is held while the cards are made.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployeeList>& recordslist,
                        const Value& thestartdate, const Value& theenddate);
    bool Generate(const ReportRequest& request) override
    {
        return GenerateReport(request.database, request.employees, request.from, request.to);
    }

private:
    void AddEmployees(const std::shared_ptr<CJetDB>& database, CEmployeeList& list, const CDateRange& days);
    void AddEmployee(const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee, const CDateRange& days);
};

} // namespace ptk
