// What was changed in a paid period since it was closed, read from the edit trail.
#pragma once

#include "model/PayPeriod.h"
#include "store/trail/TrailReader.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace ptk {

class CJetDB;

// The trail's entries newer than `newerThan`, newest first, that concern the employee's card of this period. These are the changes of each
// record that was this employee's and lay in the period before or after the change (on the card, across one of its ends, or unreadable and
// told there), and those of the employee's own row that changed a pay rate or the automatic deduction. Costs three questions at most.
// Raises the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.
[[nodiscard]] std::vector<TrailEntry> ReadPaidChanges(const std::shared_ptr<CJetDB>& database, std::int64_t employee,
                                                      const PayPeriod& period, std::int64_t newerThan);

// The keys of the time records that these entries are about, in ascending order, each once.
[[nodiscard]] std::vector<std::int64_t> RecordsOf(const std::vector<TrailEntry>& entries);

} // namespace ptk
