// A line of a report as pieces that each begin in a column of the paper.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// The columns are as wide as a digit; Chinese, Japanese and Korean characters take two, accents of their own none.
struct TextPiece
{
    std::size_t column = 0; // from 0
    std::size_t room = 0;   // columns up to the next piece, or to the paper's edge
    std::string text;       // UTF-8 without control characters; words with one blank between them
};

// The text in as many lines as it takes on paper of so many columns, one at least. Tabs lead to every eighth column. What stands behind
// several blanks keeps the column that it has where every character is counted as one, as the reports' columns are. A word that a line has
// no room for stands below it, under what it belongs to as far as it fits there. REQUIRES: no line ends in it; columns > 0.
[[nodiscard]] std::vector<std::vector<TextPiece>> PiecesOf(std::string_view line, std::size_t columns);

// In columns.
[[nodiscard]] std::size_t WidthOf(std::string_view text);

} // namespace ptk
