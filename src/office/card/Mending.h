// Stores what remedies do to time records, and one shift for several people. Each call is one transaction and one step of the edit trail,
// so that one Undo takes it back. A record that changed since it was read is not overwritten.
#pragma once

#include "model/check/Punch.h"
#include "model/remedy/Remedy.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <span>
#include <vector>

namespace ptk {

class CJetDB;

// What is done to the records of one employee.
struct Mending
{
    std::int32_t employeeID = 0;
    const Punches* rows = nullptr; // as they were read; not nullptr
    std::vector<RecordChange> changes;
};

// Stores all of these changes or nothing. False with what CJetDB::SaveTimeRecords leaves: a Conflict if a record is not as it was read.
// Raises Failure 5 for a change of a record that is not among the rows or cannot be read, 6 for a key that no time record can have; nothing
// is stored then.
[[nodiscard]] bool Mend(CJetDB& database, std::span<const Mending> mendings);

// Stores a shift of the same times for each of these employees, or for none. False with what CJetDB::SaveTimeRecords leaves.
[[nodiscard]] bool AddShift(CJetDB& database, std::span<const std::int32_t> employeeIDs, DateTime start, DateTime end);

} // namespace ptk
