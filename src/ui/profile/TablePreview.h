// The first rows of the accountant's table in a grid, as they will stand in the file.
#pragma once

#include "office/profile/ProfileTable.h"

class QTableWidget;

namespace ptk {

inline constexpr std::size_t kPreviewedPeople = 8;

// The heading line as the heading of the grid, where the profile has one; nothing of a profile that cannot be used.
void ShowPreview(QTableWidget& grid, const Profile* profile, std::span<const PaidPerson> people);

} // namespace ptk
