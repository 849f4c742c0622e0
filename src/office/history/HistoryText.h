// Says in plain words what an entry of the edit trail records.
#pragma once

#include "store/trail/TrailReader.h"

#include <functional>
#include <string>

namespace ptk {

// Answers the display name for an EmployeeID; empty for one that is not known any more.
using NameOfEmployee = std::function<std::string(std::int64_t employeeID)>;

// The entry as one line without a full stop: "Ann Lee: end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM", "Ann Lee: 03/05/2003 08:00 AM -
// 03/05/2003 05:00 PM deleted".
[[nodiscard]] std::string EntrySentence(const TrailEntry& entry, const NameOfEmployee& nameOf);

// The two parts of the entry's sentence: "Ann Lee", empty if the entry is about no employee, and "end 03/05/2003 05:00 PM became 03/05/2003
// 06:00 PM", "employee deleted", "Company 7: fax empty became "555"".
[[nodiscard]] std::string EntryEmployee(const TrailEntry& entry, const NameOfEmployee& nameOf);
[[nodiscard]] std::string EntryDeed(const TrailEntry& entry, const NameOfEmployee& nameOf);

// The reason, " (she forgot to clock out)", to stand behind what was done; empty without one.
[[nodiscard]] std::string EntryReason(const TrailEntry& entry);

// Who made the change: "Bob Ray", "another program".
[[nodiscard]] std::string EntryPerson(const TrailEntry& entry);

// When the change was made: "03/05/2003 05:00:09 PM". A text that is no moment is answered unchanged.
[[nodiscard]] std::string EntryMoment(const TrailEntry& entry);

// The start of the time record, by which people know it: "03/05/2003 08:00 AM"; empty if the entry does not hold it.
[[nodiscard]] std::string RecordMoment(const TrailEntry& entry);

} // namespace ptk
