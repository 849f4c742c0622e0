#include "reports/PeriodReport.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/CTimeRecordFactory.h"
#include "platform/Succeeds.h"
#include "platform/Text.h"

#include <algorithm>

namespace ptk {

namespace {

std::string ReasonFor(const CTimeCard& card)
{
    if (card.LastFailure().Number() != 0) {
        return card.LastFailure().Description();
    }
    return card.ErrorNumber() == report::NoRecords ? "there are no time records in this period" : "the time card could not be generated";
}

} // namespace

bool PeriodReport::Generate(const std::function<bool()>& steps)
{
    m_missing.clear();
    return Report::Generate(steps);
}

CJetDB::Hold PeriodReport::HoldDatabase() const
{
    return CJetDB::Hold(Context().factory->PTKDatabase());
}

void PeriodReport::NoteMissing(const CTimeCard& card, const std::string& whose)
{
    const std::string reason = ReasonFor(card);
    const auto gap = std::find_if(m_missing.begin(), m_missing.end(), [&](const Gap& known) { return known.reason == reason; });
    if (gap == m_missing.end()) {
        m_missing.push_back({reason, whose});
    } else {
        gap->names += ", " + whose;
    }
}

// "without Ann Lee, Omar Haddad: there are no time records in this period; without Yuki Tanaka: the database is in use by another program"
std::string PeriodReport::Missing() const
{
    std::string text;
    for (const Gap& gap : m_missing) {
        text += text.empty() ? "" : "; ";
        text += gap.names.empty() ? gap.reason : "without " + gap.names + ": " + gap.reason;
    }
    return text;
}

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
