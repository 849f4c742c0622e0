#include "reports/PeriodReport.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "platform/Succeeds.h"
#include "platform/Text.h"

namespace ptk {

bool PeriodReport::SetRange(const Value& thestartdate, const Value& theenddate)
{
    m_range = CDateRange();
    return m_range.ValidateRange(thestartdate, theenddate) || Fail(report::InvalidRange);
}

std::string PeriodReport::RangeCode()
{
    const std::string range = m_range.ToString(); // 01/01/2003+01/16/2003
    const auto cut = [&](std::size_t first, std::size_t length) { return range.substr(first - 1, length); };
    // The end's year is left out, deliberately: a period across the new year is filed under the year it began in.
    return cut(1, 2) + cut(4, 2) + "_" + cut(12, 2) + cut(15, 2) + "_" + cut(7, 4);
}

std::string PeriodReport::EmployeeFileName(const CEmployee& theemployee, const std::string& ending)
{
    return std::to_string(theemployee.EmployeeNumber()) + "_" + RangeCode() + ending;
}

std::shared_ptr<CTimeCard> PeriodReport::NewTimeCard(const std::shared_ptr<CJetDB>& thedatabase) const
{
    auto card = std::make_shared<CTimeCard>(Context().factory);
    card->PTKDatabase(thedatabase);
    return card;
}

bool PeriodReport::GenerateTimeCard(CTimeCard& card, const std::shared_ptr<CEmployee>& theemployee)
{
    // A day is added so that the shifts of the end day itself count, deliberately also where the end was meant to be exclusive. After the
    // last day of the calendar there is none.
    return Succeeds([&] { return card.GenerateTimecard(theemployee, m_range.StartDate(), m_range.EndDate().AddDays(1)); });
}

std::string TitleOfEmployee(const CEmployee& theemployee)
{
    return theemployee.FirstName() + " " + theemployee.LastName() + " : ";
}

std::string TitleOfDays(DateTime first, DateTime last)
{
    return ShortDateText(first) + " - " + ShortDateText(last);
}

} // namespace ptk
