// The table that a profile makes of what is paid.
#pragma once

#include "office/profile/PayTable.h"
#include "office/profile/Profile.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace ptk {

// The texts of its cells, before separators and quotation marks are added.
using TableLine = std::vector<std::string>;

// Whether its columns need what the check of the cards says.
[[nodiscard]] bool NeedsOverview(const Profile& profile);

// Whether its column is one of figures.
[[nodiscard]] bool IsFigure(const ProfileCell& cell, const PaidPerson& person);

// The heading line first, where the profile wants one. REQUIRES: the profile has no fault; the people's overviews where it needs them.
[[nodiscard]] std::vector<TableLine> TableLines(const Profile& profile, std::span<const PaidPerson> people);

struct TableFile
{
    std::string bytes;
    std::size_t lost = 0; // characters that the encoding lacks, each of them a question mark
};

// Lines end in CR LF. REQUIRES: the profile has no fault; the people's overviews where it needs them.
[[nodiscard]] TableFile TableFileOf(const Profile& profile, std::span<const PaidPerson> people);

// The table in UTF-8 without a mark, for a terminal. REQUIRES: as the file's.
[[nodiscard]] std::string TableText(const Profile& profile, std::span<const PaidPerson> people);

// "accountant_2026-03-01_2026-03-14.csv".
[[nodiscard]] std::string TableFileName(const PayPeriod& period);

// What there is to say of a file beside where it is: sentences without full stops, none where all is well.
[[nodiscard]] std::vector<std::string> TableNotices(const TableFile& file);

} // namespace ptk
