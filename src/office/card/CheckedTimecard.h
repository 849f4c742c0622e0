// A time card together with its check, both of one moment.
#pragma once

#include "model/check/CardCheck.h"
#include "model/payday/Closing.h"
#include "model/PayPeriod.h"
#include "model/remedy/Remedy.h"
#include "platform/Failure.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ptk {

class CEmployee;
class CJetDB;
class CTimeCard;

struct CheckedTimecard
{
    bool generated = false; // false: the card's ErrorNumber says why
    PayPeriod period;
    CheckLimits limits;
    Punches punches;                // all rows that the check looked at, also those that are not on the card
    std::optional<CardCheck> check; // set also if the card was not generated; none without an employee or if the rows could not be read
    std::vector<std::vector<Remedy>> remedies; // of each finding of the check, in their order
    std::optional<Closing> paid;               // what was paid for exactly this period
    Failure failure{0, "", ""};                // why the rows could not be read; number 0 if they could
};

// Generates the card as GenerateTimecard does, including the whole last day of the period, and checks it while the database is still held.
// `now` and the limits concern only the check; without limits those stored in the database hold. `database` must be the card's. Raises
// Failure 6 when the day after the period is beyond the calendar. autoShiftEnd: for the remedies, see ShiftEnds.
[[nodiscard]] CheckedTimecard GenerateChecked(CTimeCard& card, const std::shared_ptr<CJetDB>& database,
                                              const std::shared_ptr<CEmployee>& employee, const PayPeriod& period, DateTime now,
                                              const std::optional<CheckLimits>& limits = std::nullopt,
                                              std::optional<std::int64_t> autoShiftEnd = std::nullopt);

} // namespace ptk
