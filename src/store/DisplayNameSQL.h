// The display name of an employee in SQL.
#pragma once

namespace ptk {

// The display name as CEmployee makes it: first name, blank, last name, or the last name alone. Never null.
inline constexpr const char* kDisplayNameSql =
    "CASE WHEN COALESCE(FirstName, '') = '' THEN COALESCE(LastName, '') ELSE FirstName || ' ' || COALESCE(LastName, '') END";

} // namespace ptk
