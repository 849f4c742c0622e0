// Draws most texts with one typeface, without looking for others: Latin, Greek and Cyrillic need no more, and finding typefaces for every
// script would take longer than all the rest of a page.
#pragma once

#include <cairo.h>
#include <memory>
#include <vector>

namespace ptk {

class PlainType
{
public:
    // The typeface in the size whose characters have this width; nullptr where it is not in the folder in which this system keeps it.
    static std::unique_ptr<PlainType> Open(double characterWidth, double lineHeight);

    // Draws a text; (x, y) is the left end of its baseline. False, with nothing drawn, when the typeface lacks one of its characters, or
    // when a character does not stand in a place of its own.
    [[nodiscard]] bool Draw(cairo_t* context, const char* text, bool bold, double x, double y) const;

    // How far the baseline lies below the upper edge of a line.
    [[nodiscard]] double Ascent() const { return m_ascent; }

private:
    struct Face;

    PlainType() = default;

    const Face* m_plain = nullptr; // lives until the process ends, as cairo's caches of it do
    const Face* m_bold = nullptr;
    double m_size = 0;
    double m_ascent = 0;
    double m_advance = 0;
};

} // namespace ptk
