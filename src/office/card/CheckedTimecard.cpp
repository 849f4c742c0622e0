#include "office/card/CheckedTimecard.h"

#include "model/CEmployee.h"
#include "model/check/PunchReader.h"
#include "model/CTimeCard.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"

namespace ptk {

CheckedTimecard GenerateChecked(CTimeCard& card, const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee,
                                const PayPeriod& period, DateTime now, const std::optional<CheckLimits>& limits)
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
        result.punches = PunchReader(*database, period, result.limits.firstWeekday).Read(employee->EmployeeID());
        result.check = CheckCard({*employee, period.from, period.to}, result.punches, now, result.limits);
    };
    Succeeds(check, [&](const Failure& reason) { result.failure = reason; });
    return result;
}

} // namespace ptk
