#include "pages/AnyType.h"

namespace ptk {

namespace {

constexpr auto kTypefaces = "DejaVu Sans Mono,monospace";
constexpr double kTrialSize = 100; // points

double InPoints(int units)
{
    return static_cast<double>(units) / PANGO_SCALE;
}

} // namespace

AnyType::AnyType(cairo_t* context, double characterWidth, double lineHeight)
    : m_context(context), m_layout(pango_cairo_create_layout(context)), m_plain(pango_font_description_from_string(kTypefaces))
{
    pango_context_set_round_glyph_positions(pango_layout_get_context(m_layout.get()), FALSE);
    pango_layout_set_auto_dir(m_layout.get(), FALSE); // columns run from left to right, whatever script is in them
    pango_font_description_set_size(m_plain.get(), static_cast<int>(kTrialSize * PANGO_SCALE));
    pango_layout_set_font_description(m_layout.get(), m_plain.get());
    pango_layout_set_text(m_layout.get(), "0", 1);
    int width = 0;
    int height = 0;
    pango_layout_get_size(m_layout.get(), &width, &height);
    const double scale = characterWidth / InPoints(width);
    m_ascent = InPoints(pango_layout_get_baseline(m_layout.get())) * scale + (lineHeight - InPoints(height) * scale) / 2;
    pango_font_description_set_size(m_plain.get(), static_cast<int>(kTrialSize * scale * PANGO_SCALE));
    m_bold.reset(pango_font_description_copy(m_plain.get()));
    pango_font_description_set_weight(m_bold.get(), PANGO_WEIGHT_BOLD);
}

void AnyType::Draw(const char* text, bool bold, double x, double y, double width)
{
    pango_layout_set_font_description(m_layout.get(), bold ? m_bold.get() : m_plain.get());
    pango_layout_set_text(m_layout.get(), text, -1);
    PangoLayoutLine* line = pango_layout_get_line_readonly(m_layout.get(), 0);
    PangoRectangle extents{};
    pango_layout_line_get_extents(line, nullptr, &extents);
    const double taken = InPoints(extents.width);
    cairo_save(m_context);
    cairo_translate(m_context, x, y);
    if (taken > width + 1) {
        cairo_scale(m_context, width / taken, 1);
    }
    cairo_move_to(m_context, 0, 0);
    pango_cairo_show_layout_line(m_context, line);
    cairo_restore(m_context);
}

} // namespace ptk
