#include "office/card/CheckedTimecard.h"

#include "model/CEmployee.h"
#include "model/CTimeCard.h"
#include "model/payday/ClosingReader.h"
#include "office/card/CardChecker.h"
#include "platform/Succeeds.h"
#include "store/CJetDB.h"

namespace ptk {

namespace {

// What the check asks besides the records. A server gets these questions together with the card's own one.
struct CheckQuestions
{
    std::unique_ptr<LimitsQuestion> limits; // nullptr if the caller gave the limits
    std::unique_ptr<ClosingsQuestion> closings;
};

CheckQuestions AskForCheck(CJetDB& database, const CEmployee& employee, const PayPeriod& period, bool limitsAreGiven)
{
    RequireOpen(database);
    return {limitsAreGiven ? nullptr : std::make_unique<LimitsQuestion>(database),
            std::make_unique<ClosingsQuestion>(database, period, employee.EmployeeID())};
}

} // namespace

CheckedTimecard GenerateChecked(CTimeCard& card, const std::shared_ptr<CJetDB>& database, const std::shared_ptr<CEmployee>& employee,
                                const PayPeriod& period, DateTime now, const std::optional<CheckLimits>& limits,
                                std::optional<std::int64_t> autoShiftEnd)
{
    const DateTime end = period.to.AddDays(1);
    const CJetDB::Hold hold(database);
    const bool isToBeChecked = employee != nullptr && database != nullptr;
    const auto ask = [&] { return AskForCheck(*database, *employee, period, limits.has_value()); };
    CheckQuestions asked;
    if (isToBeChecked) {
        Succeeds([&] { asked = ask(); }); // a failure is told by the check below
    }
    CheckedTimecard result;
    result.period = period;
    result.generated = card.GenerateTimecard(employee, period.from, end);
    if (!isToBeChecked) {
        return result;
    }
    const auto check = [&] {
        if (asked.closings == nullptr) {
            asked = ask();
        }
        result.limits = limits ? *limits : asked.limits->Answer();
        CardChecker checker(database, {period, now, result.limits}, std::move(asked.closings));
        result.check = checker.Check(*employee);
        result.punches = checker.Rows();
        result.paid = checker.Paid(employee->EmployeeID());
        result.remedies = checker.Remedies(*employee, *result.check, autoShiftEnd);
    };
    Succeeds(check, [&](const Failure& reason) {
        result.failure = reason;
        result.check.reset(); // half a check would look like a whole one
    });
    return result;
}

} // namespace ptk
