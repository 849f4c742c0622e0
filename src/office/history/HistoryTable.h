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
    Who, // also names the program, unless it is the administrator
    Employee,
    What // also gives the reason, if there is one
};

inline constexpr std::size_t kHistoryColumns = 4;
using HistoryCells = std::array<std::string, kHistoryColumns>; // by HistoryColumn

[[nodiscard]] HistoryCells HistoryHeading();
[[nodiscard]] HistoryCells HistoryCellsOf(const TrailEntry& entry, const NameOfEmployee& nameOf);

// A row in one text: "03/05/2003 05:00:09 PM, Bob Ray: Ann Lee, end none became 03/05/2003 05:00 PM".
[[nodiscard]] std::string InOneText(const HistoryCells& cells);

// The lines, to copy into a spreadsheet. Each ends in LF; no cell holds a tab or a line end, and none is taken for a formula.
[[nodiscard]] std::string TabSeparated(const std::vector<HistoryCells>& lines);

// "The newest 250 changes; older ones follow as you scroll down", "1 change"; empty if none is shown.
[[nodiscard]] std::string HistoryNews(std::size_t shown, bool more);

// The text that is shown instead of rows if there are none. `chosen`: not all changes were asked for.
[[nodiscard]] std::string NoHistoryText(bool chosen);

} // namespace ptk
