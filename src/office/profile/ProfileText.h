// A profile as the database keeps it; docs/profile-format.md describes it.
#pragma once

#include "office/profile/Profile.h"

#include <string>
#include <string_view>

namespace ptk {

// Without its name.
[[nodiscard]] std::string ProfileText(const Profile& profile);

// Raises a failure without a number that says in words why it cannot be read: what is not known may be a later version's, and a table that
// leaves it aside would not be the one that was meant.
[[nodiscard]] Profile ReadProfile(const std::string& name, std::string_view text);

} // namespace ptk
