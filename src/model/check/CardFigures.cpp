#include "model/check/CardFigures.h"

#include "model/CEmployee.h"
#include "model/CTimeCalculator.h"
#include "model/CTimeRecord.h"
#include "platform/text/DecimalSum.h"
#include "platform/text/Text.h"

namespace ptk {

std::string CardFigures::Hours() const
{
    DecimalSum hours;
    hours.Add(regular);
    hours.Add(overtime);
    return hours.Text();
}

std::optional<CardFigures> FiguresOf(const CEmployee& employee, std::span<const Punch* const> punches)
{
    std::vector<WorkedShift> shifts;
    shifts.reserve(punches.size());
    for (const Punch* punch : punches) {
        shifts.push_back({*punch->start, HoursOf(punch->Minutes())});
    }
    CTimeCalculator calculator;
    if (!calculator.CalculateTimes(employee, shifts)) {
        return std::nullopt;
    }
    const float pay = calculator.CalculatePay(employee.PayRate(), employee.OvertimePayRate());
    return CardFigures{TwoDecimals(calculator.RegularHours()), TwoDecimals(calculator.OvertimeHours()), TwoDecimals(pay)};
}

} // namespace ptk
