// One employee's totals over a longer span, as a single time card.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CReportYTDTotals final : public Report
{
public:
    explicit CReportYTDTotals(ReportContext context) : Report(ReportKind::YTDTotals, std::move(context)) {}

    // The title shows the end date as given. False with 603, 602, 503, 701, or with 710, where the header is written and shown
    // without a card.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                        const Value& thestartdate, const Value& theenddate);
    bool Generate(const ReportRequest& request) override
    {
        return GenerateReport(request.database, request.employee, request.from, request.to);
    }
};

} // namespace ptk
