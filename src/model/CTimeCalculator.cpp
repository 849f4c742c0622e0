#include "model/CTimeCalculator.h"

#include "model/CEmployee.h"
#include "model/CTimeRecordList.h"
#include "platform/Failure.h"
#include "platform/Value.h"

#include <cmath>

namespace ptk {

namespace {

constexpr float kDailyRegularHours = 8.0F;
constexpr double kMinutesPerHour = 60.0;

// Every figure is a single: each step is computed in double and rounded once. Raises Failure 6 when it is too large.
float Single(double value)
{
    const auto rounded = static_cast<float>(value);
    if (!std::isfinite(rounded)) {
        throw Failure(failure::Overflow);
    }
    return rounded;
}

float Sum(float a, float b)
{
    return Single(static_cast<double>(a) + static_cast<double>(b));
}

float Product(float a, float b)
{
    return Single(static_cast<double>(a) * static_cast<double>(b));
}

} // namespace

bool CTimeCalculator::CalculateTimes(const CEmployee& theemployee, const CTimeRecordList& thetimerecordlist)
{
    try {
        const std::int16_t count = NarrowToInt16(thetimerecordlist.Count());
        for (std::int32_t i = 1; i <= count;) {
            float hours = 0;
            i = SumDay(thetimerecordlist, i, hours);
            if (theemployee.AutoDeduct()) {
                Deduct(theemployee, hours);
            }
            AddDay(hours);
        }
        return true;
    } catch (...) {
        return false;
    }
}

// A shift past midnight belongs wholly to the day on which it began. Returns the position of the next day's first record.
std::int32_t CTimeCalculator::SumDay(const CTimeRecordList& records, std::int32_t first, float& hours)
{
    const CTimeRecord& opening = records.RecordAt(first);
    hours = opening.HoursWorked();
    std::int32_t next = first + 1;
    while (next <= records.Count() && DaysBetween(opening.StartTime(), records.RecordAt(next).StartTime()) == 0) {
        hours = Sum(hours, records.RecordAt(next).HoursWorked());
        ++next;
    }
    return next;
}

void CTimeCalculator::Deduct(const CEmployee& theemployee, float& hours)
{
    const double pause = theemployee.AutoDeductBreakLength() / kMinutesPerHour;
    const double lunch = theemployee.AutoDeductLunchLength() / kMinutesPerHour;
    hours = Single(static_cast<double>(hours) - pause - lunch);
    m_totalBreakTime = Single(static_cast<double>(m_totalBreakTime) + pause + lunch);
}

void CTimeCalculator::AddDay(float hours)
{
    if (hours <= kDailyRegularHours) {
        m_regularHours = Sum(m_regularHours, hours);
        return;
    }
    m_regularHours = Sum(m_regularHours, kDailyRegularHours);
    m_overtimeHours = Sum(m_overtimeHours, Sum(hours, -kDailyRegularHours));
}

float CTimeCalculator::CalculatePay(float theregularrate, float theovertimerate)
{
    if (m_regularHours < 0) {
        m_regularPay = m_overtimePay = m_totalPay = 0;
        return 0;
    }
    try {
        m_regularPay = Product(theregularrate, m_regularHours);
        m_overtimePay = Product(m_overtimeHours, theovertimerate);
        m_totalPay = Sum(m_overtimePay, m_regularPay);
        return m_totalPay;
    } catch (...) {
        return 0;
    }
}

} // namespace ptk
