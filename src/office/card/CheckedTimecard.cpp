#include "office/card/CheckedTimecard.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "office/card/CardChecker.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"

namespace ptk {

CheckedTimecard GenerateChecked(CTimeCard& card, const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee,
                                const PayPeriod& period, DateTime now, const std::optional<CheckLimits>& limits,
                                std::optional<std::int64_t> autoShiftEnd)
{
    const DateTime end = period.to.AddDays(1);
    const CJetDB::Hold hold(database);
    CheckedTimecard result;
    result.period = period;
    result.generated = card.GenerateTimecard(employee, period.from, end);
    if (employee == nullptr || database == nullptr) {
        return result;
    }
    const auto check = [&] {
        result.limits = limits ? *limits : LoadCheckLimits(database);
        CardChecker checker(database, {period, now, result.limits}, employee->EmployeeID());
        result.check = checker.Check(*employee);
        result.punches = checker.Rows();
        result.paid = checker.Paid(employee->EmployeeID());
        result.remedies = checker.Remedies(*employee, *result.check, autoShiftEnd);
    };
    Succeeds(check, [&](const Failure& reason) {
        result.failure = reason;
        result.check.reset(); // half of one would pass for a whole one
    });
    return result;
}

} // namespace ptk
