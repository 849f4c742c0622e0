// A profile as the text that the database keeps; docs/profile-format.md describes it.
#pragma once

#include "office/profile/Profile.h"

#include <string>
#include <string_view>

namespace ptk {

// The profile's text, without its name.
[[nodiscard]] std::string ProfileText(const Profile& profile);

// The profile with this name and text. Raises a failure without a number that says why the text cannot be read. Nothing unknown is skipped:
// it may come from a later version, and a table without it would not be the one that was wanted.
[[nodiscard]] Profile ReadProfile(const std::string& name, std::string_view text);

} // namespace ptk
