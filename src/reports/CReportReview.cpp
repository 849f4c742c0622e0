#include "reports/CReportReview.h"

#include "model/CDateRange.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "reports/ReportCards.h"
#include "store/CJetDB.h"

#include <fmt/format.h>

namespace ptk {

bool CReportReview::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployeeList>& recordslist,
                                   const Value& thestartdate, const Value& theenddate)
{
    return AtEdge([&] {
        CDateRange days;
        if (!days.ValidateRange(thestartdate, theenddate)) {
            return Refuse(report::InvalidRange);
        }
        if (recordslist == nullptr) {
            return Refuse(report::ListEmpty);
        }
        if (!Open(TitleOfDays(days.StartDate(), days.EndDate()), FileNameOf(Entry(), days))) {
            return false;
        }
        Body().Add("");
        AddEmployees(thedatabase, *recordslist, days);
        return Publish();
    });
}

void CReportReview::AddEmployees(const std::shared_ptr<CJetDB>& database, CEmployeeList& list, const CDateRange& days)
{
    const CJetDB::Hold hold(Context().factory->PTKDatabase()); // so that all cards show the same moment
    Body().table.columns = PayColumns();
    const std::int32_t count = list.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        Body().BeginGroup();
        if (!GoOn(i - 1, count)) {
            Body().Add(fmt::format("Cancelled after {} of {} employees.", i - 1, count));
            return Body().CutShort(report::Cancelled);
        }
        AddEmployee(database, list.Item(i), days);
    }
}

void CReportReview::AddEmployee(const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee, const CDateRange& days)
{
    const auto card = NewTimeCard(Context(), database);
    if (GenerateTimeCard(*card, employee, days)) {
        Body().Add(employee->ToStringReview() + "\r\n" + card->ToStringReview());
        Body().table.rows.push_back(PayRow(*card, days));
    } else {
        Body().Fail(report::NotGenerated);
        NoteMissing(Body(), *card, employee == nullptr ? "an empty entry" : employee->DisplayName());
    }
    Body().AddRule();
    Body().Add("");
}

} // namespace ptk
