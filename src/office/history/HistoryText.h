// What an entry of the edit trail says, in plain words.
#pragma once

#include "store/trail/TrailReader.h"

#include <functional>
#include <string>

namespace ptk {

// The display name of an employee by number, empty for one that nobody knows any more.
using NameOfEmployee = std::function<std::string(std::int64_t employeeID)>;

// "Ann Lee: end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM", "Ann Lee: 03/05/2003 08:00 AM - 03/05/2003 05:00 PM deleted". One line, no
// full stop.
[[nodiscard]] std::string EntrySentence(const TrailEntry& entry, const NameOfEmployee& nameOf);

// The sentence in two parts: "Ann Lee", empty where the entry is about no employee, and "end 03/05/2003 05:00 PM became 03/05/2003 06:00
// PM", "employee deleted", "Company 7: fax empty became "555"".
[[nodiscard]] std::string EntryEmployee(const TrailEntry& entry, const NameOfEmployee& nameOf);
[[nodiscard]] std::string EntryDeed(const TrailEntry& entry, const NameOfEmployee& nameOf);

// Why, " (she forgot to clock out)", to stand behind what was done; empty where nothing is said.
[[nodiscard]] std::string EntryReason(const TrailEntry& entry);

// Who did it: "Bob Ray", "another program".
[[nodiscard]] std::string EntryPerson(const TrailEntry& entry);

// When, "03/05/2003 05:00:09 PM"; what is no moment as it is.
[[nodiscard]] std::string EntryMoment(const TrailEntry& entry);

// The start that tells a time record, "03/05/2003 08:00 AM"; empty where the entry does not tell it.
[[nodiscard]] std::string RecordMoment(const TrailEntry& entry);

} // namespace ptk
