#include "model/CTimeCalculator.h"

#include "model/CEmployee.h"
#include "model/CTimeRecordList.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/text/Value.h"

#include <cmath>

namespace ptk {

namespace {

constexpr float kDailyRegularHours = 8.0F;
constexpr double kMinutesPerHour = 60.0;

// Every figure has single precision: each step is computed in double precision and rounded once. Raises Failure 6 when it is too large.
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

// A shift past midnight belongs wholly to the day on which it began.
template <typename ShiftAt>
bool CTimeCalculator::Calculate(const CEmployee& employee, std::int64_t count, ShiftAt shiftAt)
{
    return Succeeds([&] {
        const std::int16_t end = NarrowToInt16(count);
        for (std::int32_t i = 0; i < end;) {
            const WorkedShift opening = shiftAt(i);
            float hours = opening.hours;
            for (++i; i < end && DaysBetween(opening.start, shiftAt(i).start) == 0; ++i) {
                hours = Sum(hours, shiftAt(i).hours);
            }
            if (employee.AutoDeduct()) {
                Deduct(employee, hours);
            }
            AddDay(hours);
        }
    });
}

bool CTimeCalculator::CalculateTimes(const CEmployee& theemployee, const CTimeRecordList& thetimerecordlist)
{
    return Calculate(theemployee, thetimerecordlist.Count(), [&](std::int32_t i) {
        const CTimeRecord& record = thetimerecordlist.RecordAt(i + 1);
        return WorkedShift{record.StartTime(), record.HoursWorked()};
    });
}

bool CTimeCalculator::CalculateTimes(const CEmployee& theemployee, std::span<const WorkedShift> theshifts)
{
    return Calculate(theemployee, static_cast<std::int64_t>(theshifts.size()),
                     [&](std::int32_t i) { return theshifts[static_cast<std::size_t>(i)]; });
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
    const bool paid = Succeeds([&] {
        m_regularPay = Product(theregularrate, m_regularHours);
        m_overtimePay = Product(m_overtimeHours, theovertimerate);
        m_totalPay = Sum(m_overtimePay, m_regularPay);
    });
    return paid ? m_totalPay : 0;
}

} // namespace ptk
