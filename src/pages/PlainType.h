// The typeface of most texts, drawn without asking for any other: what is Latin, Greek or Cyrillic needs no more, and finding typefaces for
// every script of the world first would take longer than all the rest of a page.
#pragma once

#include <cairo.h>
#include <memory>
#include <vector>

namespace ptk {

class PlainType
{
public:
    // nullptr where the typeface is not where this system keeps it. In the size whose characters are that wide.
    static std::unique_ptr<PlainType> Open(double characterWidth, double lineHeight);

    // False when a character of it is not in the typeface or is none that stands in a place of its own; nothing is drawn then. At the point
    // (x, y), the left end of the baseline.
    [[nodiscard]] bool Draw(cairo_t* context, const char* text, bool bold, double x, double y) const;

    // Of the baseline, below the upper edge of a line.
    [[nodiscard]] double Ascent() const { return m_ascent; }

private:
    struct Face;

    PlainType() = default;

    const Face* m_plain = nullptr; // until the process ends, as what cairo remembers of them
    const Face* m_bold = nullptr;
    double m_size = 0;
    double m_ascent = 0;
    double m_advance = 0;
};

} // namespace ptk
