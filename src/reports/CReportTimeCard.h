// One employee's time card for one pay period as a paper form to sign. Where the period was paid, a line below the signatures says so.
#pragma once

#include "reports/Report.h"

namespace ptk {

class CDateRange;
class CTimeCard;
struct PayPeriod;

class CReportTimeCard final : public Report
{
public:
    explicit CReportTimeCard(ReportContext context) : Report(ReportKind::TimeCard, std::move(context)) {}

    // The card of the report generated last, also one that could not be generated; nullptr before.
    [[nodiscard]] std::shared_ptr<CTimeCard> TimeCard() const { return m_timeCard; }

    // The end date is exclusive in the title, which shows the day before it; shifts of the end day count all the same. False with 603, 602,
    // 503, 701, or with 605 or 710, where the form is written and shown without its body.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                        const Value& thestartdate, const Value& theenddate);
    bool Generate(const ReportRequest& request) override
    {
        return GenerateReport(request.database, request.employee, request.from, request.to);
    }

    // Writes the form of a card that is already generated, without generating it again. False with 706, 602, 503, 701.
    bool WriteTimeCardReport(const std::shared_ptr<CTimeCard>& theTimeCard);

private:
    bool OpenForm(const CEmployee& employee, const CDateRange& days);
    void AddForm(const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee, const CDateRange& days);
    bool AddGenerated(const std::shared_ptr<CEmployee>& employee, const CDateRange& days);
    void AddBody();
    void AddSignatures();
    void AddPaid(const std::shared_ptr<CJetDB>& database, const CEmployee& employee, const PayPeriod& period);

    std::shared_ptr<CTimeCard> m_timeCard;
};

} // namespace ptk
