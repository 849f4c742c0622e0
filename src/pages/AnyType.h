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
    // Takes the typefaces in the size whose digits have this width.
    AnyType(cairo_t* context, double characterWidth, double lineHeight);

    // Draws a text, with whichever typefaces it needs; (x, y) is the left end of its baseline. A text wider than `width` is made narrower,
    // not cut.
    void Draw(const char* text, bool bold, double x, double y, double width);

    // How far the baseline lies below the upper edge of a line.
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
