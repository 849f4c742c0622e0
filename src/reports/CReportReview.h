// The accountant's review: the pay of all employees of a list for one period, one after the other.
#pragma once

#include "reports/PeriodReport.h"

namespace ptk {

class CEmployeeList;

class CReportReview final : public PeriodReport
{
public:
    explicit CReportReview(ReportContext context);

    // The title shows the end date as given. False with 603, 331, 503, 701; with 710 those who have no card are left out, as Missing tells,
    // with 711 all that come after the user's stop. The database is held while the cards are made.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployeeList>& recordslist,
                        const Value& thestartdate, const Value& theenddate);

private:
    bool WriteEmployees(const std::shared_ptr<CJetDB>& thedatabase, CEmployeeList& recordslist);
    bool WriteEmployee(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee);
};

} // namespace ptk
