#include "reports/CReportYTDTotals.h"

#include "model/CDateRange.h"
#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "reports/ReportCards.h"

namespace ptk {

bool CReportYTDTotals::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                                      const Value& thestartdate, const Value& theenddate)
{
    return AtEdge([&] {
        CDateRange days;
        if (!days.ValidateRange(thestartdate, theenddate)) {
            return Refuse(report::InvalidRange);
        }
        if (theemployee == nullptr) {
            return Refuse(report::NoEmployee);
        }
        if (!Open(TitleOfEmployee(*theemployee) + TitleOfDays(days.StartDate(), days.EndDate()),
                  FileNameOf(Entry(), days, theemployee.get()))) {
            return false;
        }
        Body().Add("");
        Body().table.columns = PayColumns();
        const auto card = NewTimeCard(Context(), thedatabase);
        if (GenerateTimeCard(*card, theemployee, days)) {
            AddCard(Body(), *card);
            Body().table.rows.push_back(PayRow(*card, days));
        } else {
            NoteMissing(Body(), *card);
            Body().Fail(report::NotGenerated); // whatever the card's own number says
        }
        return Publish();
    });
}

} // namespace ptk
