#include "model/CDateRange.h"

#include "platform/Succeeds.h"
#include "platform/text/Text.h"

namespace ptk {

CDateRange::CDateRange() : m_minDate(CalendarDate{1900, 1, 1}), m_maxDate(CalendarDate{2100, 12, 31}) {}

void CDateRange::StartDate(DateTime value)
{
    m_validRange = ValidateRange(value, m_endDate);
}

void CDateRange::EndDate(DateTime value)
{
    m_validRange = ValidateRange(m_startDate, value);
}

std::int32_t CDateRange::DayCount() const
{
    return m_validRange ? NarrowToInt32(DaysBetween(m_startDate, m_endDate)) : -1;
}

bool CDateRange::ValidateRange(const Value& thestart, const Value& theend)
{
    m_validRange = false;
    m_errorNumber = 0;
    if (!SucceedsOr(daterange::NotConvertible, m_errorNumber, [&] { SetRange(thestart.ToDateTime(), theend.ToDateTime()); })) {
        return false;
    }
    if (!WithinLimits(m_startDate) || !WithinLimits(m_endDate)) {
        m_errorNumber = daterange::OutOfLimits;
    }
    if (m_endDate < m_startDate) {
        m_errorNumber = daterange::EndBeforeStart;
    }
    m_validRange = true;
    return true;
}

bool CDateRange::CheckDateInclusion(const Value& checkthisdate)
{
    m_errorNumber = 0;
    if (!m_validRange) {
        return Fail(daterange::NeverValidated);
    }
    if (!checkthisdate.IsDate()) {
        return Fail(daterange::NotADate);
    }
    const DateTime date = checkthisdate.ToDateTime();
    if (!WithinLimits(date)) {
        return Fail(daterange::OutOfLimits);
    }
    return date >= m_startDate && date <= m_endDate;
}

bool CDateRange::SetRange(DateTime thestartdate, DateTime theenddate)
{
    m_startDate = thestartdate;
    m_endDate = theenddate;
    return true;
}

bool CDateRange::SetRangeString(const std::string& therange)
{
    m_errorNumber = 0;
    if (Parse(therange)) {
        ValidateRange(m_startDate, m_endDate);
    } else {
        SetRange(DateTime(), DateTime());
        m_validRange = false;
    }
    return true;
}

bool CDateRange::Parse(const std::string& range)
{
    const std::size_t plus = range.find('+');
    if (plus == std::string::npos) {
        return false;
    }
    const auto start = ParseHalf(range.substr(0, plus));
    const auto end = ParseHalf(range.substr(plus + 1));
    return start && end && SetRange(*start, *end);
}

std::optional<DateTime> CDateRange::ParseHalf(const std::string& text)
{
    const auto date = ParseDateTime(text);
    if (!date) {
        Fail(daterange::NotADate);
    }
    return date;
}

std::string CDateRange::ToString() const
{
    return DateText(m_startDate) + "+" + DateText(m_endDate);
}

std::string CDateRange::DateText(DateTime date) const
{
    return m_enforceFormat ? FormatDateTime(date, m_formatString) : GeneralText(date);
}

bool CDateRange::Fail(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

} // namespace ptk
