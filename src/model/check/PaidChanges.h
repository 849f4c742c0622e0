// What was changed of a paid period since it was closed, as the edit trail tells it.
#pragma once

#include "model/PayPeriod.h"
#include "store/trail/TrailReader.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace ptk {

class CJetDB;

// The entries newer than `newerThan`, newest first, that concern the employee's card of this period: of each record that was this
// employee's and lay in the period, before the change or after it (on the card, across one of its ends, or unreadable and told there); and
// of the employee's own row, where a pay rate or the automatic deduction changed. Costs three questions, however many records there are.
// Raises the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.
[[nodiscard]] std::vector<TrailEntry> ReadPaidChanges(const std::shared_ptr<CJetDB>& database, std::int64_t employee,
                                                      const PayPeriod& period, std::int64_t newerThan);

// The time records that these entries are about, by number, each once.
[[nodiscard]] std::vector<std::int64_t> RecordsOf(const std::vector<TrailEntry>& entries);

} // namespace ptk
