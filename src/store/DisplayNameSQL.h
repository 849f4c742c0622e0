// The display name of an employee in the engine's own words.
#pragma once

namespace ptk {

// As CEmployee puts it together: first name, blank, last name, or the last name alone. Never null.
inline constexpr const char* kDisplayNameSql =
    "IIF(IFNULL(FirstName, '') = '', IFNULL(LastName, ''), FirstName || ' ' || IFNULL(LastName, ''))";

} // namespace ptk
