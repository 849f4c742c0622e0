#include "reports/CReportTimeCard.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"

namespace ptk {

namespace {

const std::string kSignatureRule = std::string(40, '_') + std::string(10, ' ') + std::string(20, '_');
const std::string kSignatures = kSignatureRule + "\r\n" +                                          //
                                "Employee Signature" + std::string(32, ' ') + "Date\r\n\r\n\r\n" + //
                                kSignatureRule + "\r\n" +                                          //
                                "Manager Signature" + std::string(33, ' ') + "Date";

} // namespace

CReportTimeCard::CReportTimeCard(ReportContext context)
    : PeriodReport({ReportKind::TimeCard, "Employee Time Card : ", &ReportOwner::UnloadTimeCardReport}, std::move(context))
{
}

bool CReportTimeCard::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
                                     const Value& thestartdate, const Value& theenddate)
{
    return Generate([&] {
        if (!SetRange(thestartdate, theenddate)) {
            return false;
        }
        if (theemployee == nullptr) {
            return Fail(report::NoEmployee);
        }
        m_timeCard = NewTimeCard(thedatabase);
        return WriteForm(*theemployee, [&] { return WriteGenerated(theemployee); });
    });
}

bool CReportTimeCard::WriteTimeCardReport(const std::shared_ptr<CTimeCard>& theTimeCard)
{
    return Generate([&] {
        if (theTimeCard == nullptr) {
            return Fail(report::NoTimeCard);
        }
        m_timeCard = theTimeCard;
        const auto employee = theTimeCard->Employee();
        if (employee == nullptr) {
            return Fail(report::NoEmployee);
        }
        Range().SetRange(theTimeCard->StartDate(), theTimeCard->EndDate());
        return WriteForm(*employee, [&] {
            WriteLine(m_timeCard->ToStringReport());
            return true;
        });
    });
}

bool CReportTimeCard::WriteForm(const CEmployee& theemployee, const std::function<bool()>& writeCard)
{
    Name(TitleOfEmployee(theemployee) + TitleOfDays(Range().StartDate(), Range().EndDate().AddDays(-1)),
         EmployeeFileName(theemployee, "_time_card.txt"));
    return Write([&] {
        WriteLine("");
        const bool written = writeCard();
        WriteLine("");
        WriteLine("");
        WriteLine(kSignatures);
        return written;
    });
}

bool CReportTimeCard::WriteGenerated(const std::shared_ptr<CEmployee>& theemployee)
{
    if (GenerateTimeCard(*m_timeCard, theemployee)) {
        WriteLine(m_timeCard->ToStringReport());
        return true;
    }
    // Where there are no records, the number says so by itself.
    if (m_timeCard->LastFailure().Number() != 0 || m_timeCard->ErrorNumber() != report::NoRecords) {
        NoteMissing(*m_timeCard);
    }
    return Fail(m_timeCard->ErrorNumber() == report::NoRecords ? report::NoRecords : report::NotGenerated);
}

} // namespace ptk
