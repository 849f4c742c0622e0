// The table that a profile makes of what is paid.
#pragma once

#include "office/profile/PayTable.h"
#include "office/profile/Profile.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace ptk {

// The texts of a line's cells, before separators and quotation marks are added.
using TableLine = std::vector<std::string>;

// Whether a column of the profile needs the check of the cards.
[[nodiscard]] bool NeedsOverview(const Profile& profile);

// Whether this person's value of the cell is a figure or hours. REQUIRES: the person's overview if the cell's column needs it.
[[nodiscard]] bool IsFigure(const ProfileCell& cell, const PaidPerson& person);

// The lines, with the heading line first if the profile wants one. REQUIRES: no fault; people have their overviews if it NeedsOverview.
[[nodiscard]] std::vector<TableLine> TableLines(const Profile& profile, std::span<const PaidPerson> people);

struct TableFile
{
    std::string bytes;
    std::size_t lost = 0; // number of characters that the encoding lacks; each became a question mark
};

// The table as a file; lines end in CR LF. REQUIRES: the profile has no fault; people have their overviews if it NeedsOverview.
[[nodiscard]] TableFile TableFileOf(const Profile& profile, std::span<const PaidPerson> people);

// The table in UTF-8 without a byte order mark, for a terminal. REQUIRES: what TableFileOf requires.
[[nodiscard]] std::string TableText(const Profile& profile, std::span<const PaidPerson> people);

// "accountant_2026-03-01_2026-03-14.csv".
[[nodiscard]] std::string TableFileName(const PayPeriod& period);

// What the user must know about a file: sentences without full stops; empty if all is well.
[[nodiscard]] std::vector<std::string> TableNotices(const TableFile& file);

} // namespace ptk
