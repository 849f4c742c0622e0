// The payroll rule: hours are summed per calendar day of the shifts' starts, the automatic deductions come off once a day, the first 8
// hours of a day are regular and the rest is overtime. There is no weekly threshold and no rounding but to single.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <span>

namespace ptk {

class CEmployee;
class CTimeRecordList;

struct WorkedShift
{
    DateTime start;
    float hours; // not negative
};

// Hours are decimal hours. The figures start at 0 and accumulate over calls. No member raises.
class CTimeCalculator
{
public:
    // Negative when deductions exceed the hours, deliberately.
    [[nodiscard]] float RegularHours() const { return m_regularHours; }

    [[nodiscard]] float OvertimeHours() const { return m_overtimeHours; }
    [[nodiscard]] float RegularPay() const { return m_regularPay; }
    [[nodiscard]] float OvertimePay() const { return m_overtimePay; }
    [[nodiscard]] float TotalPay() const { return m_totalPay; }

    // The hours that automatic deductions took off.
    [[nodiscard]] float TotalBreakTime() const { return m_totalBreakTime; }

    // Always 0: a failure shows in the answer alone.
    [[nodiscard]] std::int32_t ErrorNumber() const { return 0; }

    // REQUIRES: the list is in order of start times. False, with the figures as far as they were summed, for more than 32,767 records or an
    // overflow.
    bool CalculateTimes(const CEmployee& theemployee, const CTimeRecordList& thetimerecordlist);

    // REQUIRES: the shifts, known by start and hours alone, are in order of start times. False, with the figures as far as they were
    // summed, for more than 32,767 shifts or an overflow.
    bool CalculateTimes(const CEmployee& theemployee, std::span<const WorkedShift> theshifts);

    // The total pay at these rates per hour; 0 on an overflow. Negative regular hours pay nothing, not even overtime, deliberately.
    float CalculatePay(float theregularrate, float theovertimerate);

private:
    template <typename ShiftAt>
    bool Calculate(const CEmployee& employee, std::int64_t count, ShiftAt shiftAt);
    void Deduct(const CEmployee& theemployee, float& hours);
    void AddDay(float hours);

    float m_regularHours = 0;
    float m_overtimeHours = 0;
    float m_regularPay = 0;
    float m_overtimePay = 0;
    float m_totalPay = 0;
    float m_totalBreakTime = 0;
};

} // namespace ptk
