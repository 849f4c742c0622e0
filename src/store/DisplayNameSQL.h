// The display name of an employee in SQL.
#pragma once

namespace ptk {

// As CEmployee puts it together: first name, blank, last name, or the last name alone. Never null.
inline constexpr const char* kDisplayNameSql =
    "CASE WHEN COALESCE(FirstName, '') = '' THEN COALESCE(LastName, '') ELSE FirstName || ' ' || COALESCE(LastName, '') END";

} // namespace ptk
