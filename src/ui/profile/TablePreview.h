// The first rows of the accountant's table in a grid, as they will stand in the file.
#pragma once

#include "office/profile/ProfileTable.h"

class QTableWidget;

namespace ptk {

inline constexpr std::size_t kPreviewedPeople = 8;

// Fills the grid with the rows of these people. The heading line, where the profile has one, becomes the grid's heading. nullptr: the grid
// is emptied.
void ShowPreview(QTableWidget& grid, const Profile* profile, std::span<const PaidPerson> people);

} // namespace ptk
