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
    Punches punches;                // all rows that the check looked at, for those of a finding that are not on the card
    std::optional<CardCheck> check; // also of a card that was not generated; none without an employee or when its rows could not be read
    std::vector<std::vector<Remedy>> remedies; // by finding of the check
    std::optional<Closing> paid;               // what was paid for exactly this period
    Failure failure{0, "", ""};                // why they could not; number 0 otherwise
};

// Generates the card as GenerateTimecard does, the whole of the period's last day included, and checks it while the database is still held.
// `now` and the limits are the check's alone; without limits those of the database hold. Raises Failure 6 when the day after the period is
// beyond the calendar. The database is the card's. autoShiftEnd: for the remedies, see ShiftEnds.
[[nodiscard]] CheckedTimecard GenerateChecked(CTimeCard& card, const std::shared_ptr<CJetDB>& database,
                                              const std::shared_ptr<CEmployee>& employee, const PayPeriod& period, DateTime now,
                                              const std::optional<CheckLimits>& limits = std::nullopt,
                                              std::optional<std::int64_t> autoShiftEnd = std::nullopt);

} // namespace ptk
