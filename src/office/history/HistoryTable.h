// The history as a table: what its cells say and how they are copied.
#pragma once

#include "office/history/HistoryText.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace ptk {

enum class HistoryColumn
{
    When,
    Who, // and through which program, where it was another than the administrator's
    Employee,
    What // and why, where that is said
};

inline constexpr std::size_t kHistoryColumns = 4;
using HistoryCells = std::array<std::string, kHistoryColumns>; // by HistoryColumn

[[nodiscard]] HistoryCells HistoryHeading();
[[nodiscard]] HistoryCells CellsOf(const TrailEntry& entry, const NameOfEmployee& nameOf);

// "03/05/2003 05:00:09 PM, Bob Ray: Ann Lee, end none became 03/05/2003 05:00 PM".
[[nodiscard]] std::string InOneText(const HistoryCells& cells);

// Each line ends in LF; no cell holds a tab or a line end, and none is a formula to a spreadsheet.
[[nodiscard]] std::string TabSeparated(const std::vector<HistoryCells>& lines);

// "The newest 250 changes; older ones follow as you scroll down", "1 change", and nothing without any.
[[nodiscard]] std::string HistoryNews(std::size_t shown, bool more);

// What stands in the place of no rows; `chosen` where they are not all changes that are asked for.
[[nodiscard]] std::string NoHistoryText(bool chosen);

} // namespace ptk
