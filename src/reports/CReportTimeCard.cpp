#include "reports/CReportTimeCard.h"

#include "model/CDateRange.h"
#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/payday/ClosingReader.h"
#include "model/payday/PaidText.h"
#include "platform/Succeeds.h"
#include "reports/ReportCards.h"
#include "store/CJetDB.h"

namespace ptk {

namespace {

constexpr auto kPaidUnread = "whether the period was paid could not be read: ";
const std::string kSignatureRule = std::string(40, '_') + std::string(10, ' ') + std::string(20, '_');
const std::string kSignatures = kSignatureRule + "\r\n" +                                          //
                                "Employee Signature" + std::string(32, ' ') + "Date\r\n\r\n\r\n" + //
                                kSignatureRule + "\r\n" +                                          //
                                "Manager Signature" + std::string(33, ' ') + "Date";

constexpr ReportColumn kCardColumns[] = {
    {"Employee Number", CellType::WholeNumber}, {"First Name", CellType::Text},   {"Last Name", CellType::Text},
    {"Start Time", CellType::DateTime},         {"End Time", CellType::DateTime}, {"Hours", CellType::Hours},
};

ReportRow CardRow(const CEmployee& employee, const CardLine& line, float breakHours)
{
    return {employee.EmployeeNumber(), employee.FirstName(), employee.LastName(), line.start, line.end.IsZero() ? Value() : Value(line.end),
            line.hours - breakHours};
}

} // namespace

bool CReportTimeCard::GenerateReport(const std::shared_ptr<CJetDB>& thedatabase, const std::shared_ptr<CEmployee>& theemployee,
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
        m_timeCard = NewTimeCard(Context(), thedatabase);
        if (!OpenForm(*theemployee, days)) {
            return false;
        }
        AddForm(thedatabase, theemployee, days);
        return Publish();
    });
}

bool CReportTimeCard::WriteTimeCardReport(const std::shared_ptr<CTimeCard>& theTimeCard)
{
    return AtEdge([&] {
        if (theTimeCard == nullptr) {
            return Refuse(report::NoTimeCard);
        }
        m_timeCard = theTimeCard;
        const auto employee = theTimeCard->Employee();
        if (employee == nullptr) {
            return Refuse(report::NoEmployee);
        }
        CDateRange days;
        days.SetRange(theTimeCard->StartDate(), theTimeCard->EndDate());
        if (!OpenForm(*employee, days)) {
            return false;
        }
        AddBody();
        AddSignatures();
        AddPaid(theTimeCard->PTKDatabase(), *employee, {days.StartDate(), days.EndDate().AddDays(-1)});
        return Publish();
    });
}

bool CReportTimeCard::OpenForm(const CEmployee& employee, const CDateRange& days)
{
    const bool opened =
        Open(TitleOfEmployee(employee) + TitleOfDays(days.StartDate(), days.EndDate().AddDays(-1)), FileNameOf(Entry(), days, &employee));
    if (opened) {
        Body().Add("");
        Body().table.columns = kCardColumns;
    }
    return opened;
}

void CReportTimeCard::AddForm(const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee, const CDateRange& days)
{
    const CJetDB::Hold hold(database); // so that card and payment show the same moment
    const bool generated = AddGenerated(employee, days);
    AddSignatures();
    if (generated) {
        AddPaid(database, *employee, {days.StartDate(), days.EndDate()}); // the days that the card counts; its title ends a day earlier
    }
}

bool CReportTimeCard::AddGenerated(const std::shared_ptr<CEmployee>& employee, const CDateRange& days)
{
    if (GenerateTimeCard(*m_timeCard, employee, days)) {
        AddBody();
        return true;
    }
    const bool noRecords = m_timeCard->ErrorNumber() == report::NoRecords;
    Body().Fail(noRecords ? report::NoRecords : report::NotGenerated);
    // A period without records needs no reason: the number says it.
    if (m_timeCard->LastFailure().Number() != 0 || !noRecords) {
        NoteMissing(Body(), *m_timeCard);
    }
    return false;
}

void CReportTimeCard::AddBody()
{
    AddCard(Body(), *m_timeCard);
    for (const CardLine& line : m_timeCard->Lines()) {
        Body().table.rows.push_back(CardRow(*m_timeCard->Employee(), line, m_timeCard->BreakAllowance()));
    }
}

void CReportTimeCard::AddSignatures()
{
    Body().BeginGroup(true);
    Body().Add("");
    Body().Add("");
    Body().Add(kSignatures);
}

// Adds a line only where the period was paid, so that any other form stays as it was.
void CReportTimeCard::AddPaid(const std::shared_ptr<CJetDB>& database, const CEmployee& employee, const PayPeriod& period)
{
    if (database == nullptr) {
        return;
    }
    const auto add = [&] {
        const Closings closings = ReadClosings(database, period, employee.EmployeeID());
        const auto found = closings.find(employee.EmployeeID());
        if (found != closings.end() && found->second.Newest() != nullptr) {
            Body().Add("");
            Body().Add(PaidText(*found->second.Newest()) + ": " + PaidFigures(*found->second.Newest()));
        }
    };
    Succeeds(add, [this](const Failure& reason) { Body().AddGap(kPaidUnread + reason.Description(), ""); });
}

} // namespace ptk
