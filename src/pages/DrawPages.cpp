// The module that draws pages as a PDF file, with pango, which finds a typeface for every script, and cairo.
#include "reports/PageDrawing.h"

#include <cairo-pdf.h>
#include <memory>
#include <pango/pangocairo.h>

namespace {

// One that looks the same wherever it is printed, or else the system's own.
constexpr auto kTypefaces = "DejaVu Sans Mono,monospace";
constexpr double kTrialSize = 100; // points
constexpr double kRuleWidth = 0.5;

template <auto Release>
struct Releases
{
    template <typename Thing>
    void operator()(Thing* thing) const
    {
        Release(thing);
    }
};

using Surface = std::unique_ptr<cairo_surface_t, Releases<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releases<cairo_destroy>>;
using Layout = std::unique_ptr<PangoLayout, Releases<g_object_unref>>;
using Description = std::unique_ptr<PangoFontDescription, Releases<pango_font_description_free>>;

struct Taker
{
    PtkTakeBytes take;
    void* taker;
};

cairo_status_t Write(void* closure, const unsigned char* bytes, unsigned length)
{
    const Taker& to = *static_cast<Taker*>(closure);
    return to.take(to.taker, bytes, length) != 0 ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

double InPoints(int units)
{
    return static_cast<double>(units) / PANGO_SCALE;
}

class Pen
{
public:
    Pen(cairo_t* context, const PtkPages& pages);
    void Draw(const PtkPage& page);

private:
    void Measure(double characterWidth);
    void Draw(const PtkText& text);
    void Draw(const PtkRule& rule);

    cairo_t* m_context;
    double m_lineHeight;
    Layout m_layout;
    Description m_plain;
    Description m_bold;
    int m_ascent = 0; // with half of what the line has to spare above it; in pango's units
};

Pen::Pen(cairo_t* context, const PtkPages& pages)
    : m_context(context), m_lineHeight(pages.lineHeight), m_layout(pango_cairo_create_layout(context)),
      m_plain(pango_font_description_from_string(kTypefaces)), m_bold(nullptr)
{
    pango_context_set_round_glyph_positions(pango_layout_get_context(m_layout.get()), FALSE);
    pango_layout_set_auto_dir(m_layout.get(), FALSE); // the columns stand from left to right, whatever stands in them
    Measure(pages.characterWidth);
    m_bold.reset(pango_font_description_copy(m_plain.get()));
    pango_font_description_set_weight(m_bold.get(), PANGO_WEIGHT_BOLD);
}

void Pen::Measure(double characterWidth)
{
    pango_font_description_set_size(m_plain.get(), static_cast<int>(kTrialSize * PANGO_SCALE));
    pango_layout_set_font_description(m_layout.get(), m_plain.get());
    pango_layout_set_text(m_layout.get(), "0", 1);
    int width = 0;
    int height = 0;
    pango_layout_get_size(m_layout.get(), &width, &height);
    const double scale = characterWidth / InPoints(width);
    pango_font_description_set_size(m_plain.get(), static_cast<int>(kTrialSize * scale * PANGO_SCALE));
    const double spare = m_lineHeight * PANGO_SCALE - height * scale;
    m_ascent = static_cast<int>(pango_layout_get_baseline(m_layout.get()) * scale + spare / 2);
}

void Pen::Draw(const PtkPage& page)
{
    for (std::size_t i = 0; i < page.textCount; ++i) {
        Draw(page.texts[i]);
    }
    for (std::size_t i = 0; i < page.ruleCount; ++i) {
        Draw(page.rules[i]);
    }
    cairo_show_page(m_context);
}

// On one baseline, whichever typefaces a line takes; what is wider than its columns is made narrower rather than cut.
void Pen::Draw(const PtkText& text)
{
    pango_layout_set_font_description(m_layout.get(), text.bold != 0 ? m_bold.get() : m_plain.get());
    pango_layout_set_text(m_layout.get(), text.text, -1);
    PangoLayoutLine* line = pango_layout_get_line_readonly(m_layout.get(), 0);
    PangoRectangle extents{};
    pango_layout_line_get_extents(line, nullptr, &extents);
    const double width = InPoints(extents.width);
    cairo_save(m_context);
    cairo_translate(m_context, text.x, text.y + InPoints(m_ascent));
    if (width > text.width + 1) {
        cairo_scale(m_context, text.width / width, 1);
    }
    cairo_move_to(m_context, 0, 0);
    pango_cairo_show_layout_line(m_context, line);
    cairo_restore(m_context);
}

void Pen::Draw(const PtkRule& rule)
{
    cairo_set_line_width(m_context, kRuleWidth);
    cairo_move_to(m_context, rule.x, rule.y);
    cairo_rel_line_to(m_context, rule.width, 0);
    cairo_stroke(m_context);
}

} // namespace

extern "C" __attribute__((visibility("default"))) const char* ptk_draw_pages(const PtkPages* pages, PtkTakeBytes take, void* taker)
{
    Taker to{take, taker};
    const Surface surface(cairo_pdf_surface_create_for_stream(&Write, &to, pages->width, pages->height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, pages->title);
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, pages->created);
    {
        const Context context(cairo_create(surface.get()));
        Pen pen(context.get(), *pages);
        for (std::size_t i = 0; i < pages->count; ++i) {
            pen.Draw(pages->pages[i]);
        }
    }
    cairo_surface_finish(surface.get());
    const cairo_status_t status = cairo_surface_status(surface.get());
    return status == CAIRO_STATUS_SUCCESS ? nullptr : cairo_status_to_string(status);
}
