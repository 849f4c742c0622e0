// A line of a report in pieces, each of which begins in a column of the paper.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// A column is as wide as a digit; Chinese, Japanese and Korean characters take two, combining accents none.
struct TextPiece
{
    std::size_t column = 0; // from 0
    std::size_t room = 0;   // columns up to the next piece, or to the paper's edge
    std::string text;       // UTF-8 without control characters; words with one blank between them
};

// Breaks a line into as many lines as it needs on paper of this many columns, at least one. Tabs lead to every eighth column. A word after
// several blanks keeps the column that it has when every character counts as one, as in the reports' own columns. A word that has no room
// on its line goes to the next one, below what it belongs to, as far as it fits there. REQUIRES: `line` has no line ends; columns > 0.
[[nodiscard]] std::vector<std::vector<TextPiece>> PiecesOf(std::string_view line, std::size_t columns);

// The width of a text in columns.
[[nodiscard]] std::size_t WidthOf(std::string_view text);

} // namespace ptk
