// A report on paper: which line stands on which page, and where. Nothing is drawn here.
#pragma once

#include "platform/system/SystemPaper.h"
#include "platform/text/DateTime.h"
#include "reports/forms/TextPieces.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ptk {

struct ReportDocument;

// Lengths in points, 72 to an inch. 12 characters an inch leave room for a line of 72 characters and its tabs on either paper; 6 lines an
// inch are easy to read.
struct Paper
{
    double width;
    double height;
    double margin = 54; // on all sides
    double lineHeight = 12;
    double characterWidth = 6;

    // Columns and rows of text within the margins.
    [[nodiscard]] std::size_t Columns() const { return static_cast<std::size_t>((width - 2 * margin) / characterWidth); }
    [[nodiscard]] std::size_t Rows() const { return static_cast<std::size_t>((height - 2 * margin) / lineHeight); }
};

[[nodiscard]] Paper PaperOf(PaperSize size);

// Paper of that size with a type small enough for this many columns, but not smaller than two thirds of the usual type.
[[nodiscard]] Paper PaperFor(std::size_t columns, PaperSize size);

// The document's title on one line, one blank between its words.
[[nodiscard]] std::string HeadOf(const ReportDocument& document);

enum class LineStyle
{
    Plain,
    Bold,
    Rule // a line across the paper instead of text
};

struct PlacedLine
{
    std::size_t row = 0; // from 0, within the margins
    LineStyle style = LineStyle::Plain;
    std::vector<TextPiece> pieces{}; // none for a rule
};

// The lines of a page from top to bottom, without the empty ones.
using Page = std::vector<PlacedLine>;

// Lays the document out on at least one page. Each page has the document's title and a rule at its head, in place of those with which the
// document itself begins, and the day of printing and "Page x of y" at its foot. A group is kept whole on one page where a page can hold
// it, and a group at the foot stays with the group before it. A page that begins within lines under a heading repeats the heading; no page
// begins with an empty line. REQUIRES: paper of at least 20 rows.
[[nodiscard]] std::vector<Page> LayOut(const ReportDocument& document, const Paper& paper, DateTime printed);

} // namespace ptk
