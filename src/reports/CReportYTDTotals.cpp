#include "reports/CReportYTDTotals.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"

namespace ptk {

CReportYTDTotals::CReportYTDTotals(ReportContext context)
    : PeriodReport({ReportKind::YTDTotals, "Employee Year-To-Date Totals : ", &ReportOwner::UnloadYTDTotalsReport}, std::move(context))
{
}

bool CReportYTDTotals::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                                      const Value& thestartdate, const Value& theenddate)
{
    return Generate([&] {
        if (!SetRange(thestartdate, theenddate)) {
            return false;
        }
        if (theemployee == nullptr) {
            return Fail(report::NoEmployee);
        }
        Name(TitleOfEmployee(*theemployee) + TitleOfDays(Range().StartDate(), Range().EndDate()),
             EmployeeFileName(*theemployee, "_ytd_totals.txt"));
        m_timeCard = NewTimeCard(thedatabase);
        return Write([&] { return WriteTotals(theemployee); });
    });
}

bool CReportYTDTotals::WriteTotals(const std::shared_ptr<CEmployee>& theemployee)
{
    WriteLine("");
    if (!GenerateTimeCard(*m_timeCard, theemployee)) {
        NoteMissing(*m_timeCard);
        return Fail(report::NotGenerated); // whatever the card's own number says
    }
    WriteLine(m_timeCard->ToStringReport());
    return true;
}

} // namespace ptk
