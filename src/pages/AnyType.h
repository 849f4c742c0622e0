// Texts of any script, in the typefaces that pango finds for them.
#pragma once

#include <cairo.h>

#include <memory>
#include <pango/pangocairo.h>

namespace ptk {

template <auto Release>
struct Releases
{
    template <typename Thing>
    void operator()(Thing* thing) const
    {
        Release(thing);
    }
};

class AnyType
{
public:
    // In the size whose digits are that wide.
    AnyType(cairo_t* context, double characterWidth, double lineHeight);

    // At the point (x, y), the left end of the baseline, whichever typefaces it takes; what is wider than `width` is made narrower rather
    // than cut.
    void Draw(const char* text, bool bold, double x, double y, double width);

    // Of the baseline, below the upper edge of a line.
    [[nodiscard]] double Ascent() const { return m_ascent; }

private:
    using Description = std::unique_ptr<PangoFontDescription, Releases<pango_font_description_free>>;

    cairo_t* m_context;
    std::unique_ptr<PangoLayout, Releases<g_object_unref>> m_layout;
    Description m_plain;
    Description m_bold;
    double m_ascent = 0;
};

} // namespace ptk
