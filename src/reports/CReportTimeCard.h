// One employee's time card for one pay period as a paper form to sign.
#pragma once

#include "reports/PeriodReport.h"

namespace ptk {

class CReportTimeCard final : public PeriodReport
{
public:
    explicit CReportTimeCard(ReportContext context);

    std::shared_ptr<CTimeCard> TimeCard() const { return m_timeCard; } // the card written, also one that could not be generated

    // The end date is exclusive: the title shows the day before it. False with 603, 602, 503, 701; with 605 or 710 the form is written
    // without its body and shown.
    bool GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                        const Value& thestartdate, const Value& theenddate);

    // The same form for a card already generated, as it stands. False with 706, 602, 503, 701.
    bool WriteTimeCardReport(const std::shared_ptr<CTimeCard>& theTimeCard);

private:
    bool WriteForm(const CEmployee& theemployee, const std::function<bool()>& writeCard);
    bool WriteGenerated(const std::shared_ptr<CEmployee>& theemployee);

    std::shared_ptr<CTimeCard> m_timeCard;
};

} // namespace ptk
