// One employee's totals over a longer span, as a single time card.
#pragma once

#include "reports/PeriodReport.h"

namespace ptk {

class CReportYTDTotals final : public PeriodReport
{
public:
    explicit CReportYTDTotals(ReportContext context);

    // The title shows the end date as given. False with 603, 602, 503, 701; with 710 the header is written and shown without a card.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                        const Value& thestartdate, const Value& theenddate);

private:
    bool WriteTotals(const std::shared_ptr<CEmployee>& theemployee);

    std::shared_ptr<CTimeCard> m_timeCard;
};

} // namespace ptk
