#include "reports/CReportReview.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"

namespace ptk {

CReportReview::CReportReview(ReportContext context)
    : PeriodReport({ReportKind::Review, "Accountant's Review : ", &ReportOwner::UnloadReviewReport}, std::move(context))
{
}

bool CReportReview::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployeeList>& recordslist,
                                   const Value& thestartdate, const Value& theenddate)
{
    return Generate([&] {
        if (!SetRange(thestartdate, theenddate)) {
            return false;
        }
        if (recordslist == nullptr) {
            return Fail(report::ListEmpty);
        }
        Name(TitleOfDays(Range().StartDate(), Range().EndDate()), "salary_review_" + RangeCode() + ".txt");
        return Write([&] {
            const CJetDB::Hold hold = HoldDatabase();
            return WriteEmployees(thedatabase, *recordslist);
        });
    });
}

bool CReportReview::WriteEmployees(const std::shared_ptr<CJetDB>& thedatabase, CEmployeeList& recordslist)
{
    WriteLine("");
    bool complete = true;
    const std::int32_t count = recordslist.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        if (!GoOn(i - 1, count)) {
            return false;
        }
        complete = WriteEmployee(thedatabase, recordslist.Item(i)) && complete;
        WriteRule();
        WriteLine("");
    }
    return complete;
}

bool CReportReview::WriteEmployee(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee)
{
    const auto card = NewTimeCard(thedatabase);
    if (!GenerateTimeCard(*card, theemployee)) {
        NoteMissing(*card, theemployee == nullptr ? "an empty entry" : theemployee->DisplayName());
        return Fail(report::NotGenerated);
    }
    WriteLine(card->Employee()->ToStringReview() + "\r\n" + card->ToStringReview());
    return true;
}

} // namespace ptk
