// The module that draws pages as a PDF file, with cairo.
#include "pages/AnyType.h"
#include "pages/PlainType.h"
#include "reports/forms/PageDrawing.h"

#include <cairo-pdf.h>
#include <new>
#include <optional>

namespace ptk {

namespace {

constexpr double kRuleWidth = 0.5;
constexpr auto kNoMemory = "out of memory";

using Surface = std::unique_ptr<cairo_surface_t, Releases<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releases<cairo_destroy>>;

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

class Pen
{
public:
    Pen(cairo_t* context, const PtkPages& pages);
    void Draw(const PtkPage& page);

private:
    void Draw(const PtkText& text);
    void Draw(const PtkRule& rule);
    AnyType& Any();

    cairo_t* m_context;
    const PtkPages& m_pages;
    std::unique_ptr<PlainType> m_plain;
    std::optional<AnyType> m_any; // made when it is first needed
};

Pen::Pen(cairo_t* context, const PtkPages& pages)
    : m_context(context), m_pages(pages), m_plain(PlainType::Open(pages.characterWidth, pages.lineHeight))
{
    cairo_set_line_width(context, kRuleWidth);
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

void Pen::Draw(const PtkText& text)
{
    const bool bold = text.bold != 0;
    const double baseline = text.y + (m_plain != nullptr ? m_plain->Ascent() : Any().Ascent());
    if (m_plain == nullptr || !m_plain->Draw(m_context, text.text, bold, text.x, baseline)) {
        Any().Draw(text.text, bold, text.x, baseline, text.width);
    }
}

void Pen::Draw(const PtkRule& rule)
{
    cairo_move_to(m_context, rule.x, rule.y);
    cairo_rel_line_to(m_context, rule.width, 0);
    cairo_stroke(m_context);
}

AnyType& Pen::Any()
{
    return m_any ? *m_any : m_any.emplace(m_context, m_pages.characterWidth, m_pages.lineHeight);
}

const char* DrawPages(const PtkPages& pages, Taker to)
{
    const Surface surface(cairo_pdf_surface_create_for_stream(&Write, &to, pages.width, pages.height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, pages.title);
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, pages.created);
    {
        const Context context(cairo_create(surface.get()));
        Pen pen(context.get(), pages);
        for (std::size_t i = 0; i < pages.count; ++i) {
            pen.Draw(pages.pages[i]);
        }
    }
    cairo_surface_finish(surface.get());
    const cairo_status_t status = cairo_surface_status(surface.get());
    return status == CAIRO_STATUS_SUCCESS ? nullptr : cairo_status_to_string(status);
}

} // namespace

} // namespace ptk

extern "C" __attribute__((visibility("default"))) const char* ptk_draw_pages(const PtkPages* pages, PtkTakeBytes take, void* taker)
{
    try {
        return ptk::DrawPages(*pages, {take, taker});
    } catch (const std::bad_alloc&) {
        return ptk::kNoMemory;
    }
}
