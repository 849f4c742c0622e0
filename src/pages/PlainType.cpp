#include "pages/PlainType.h"

#include <cairo-ft.h>
#include <cstring>
#include <ft2build.h>
#include <string>
#include <string_view>

#include FT_FREETYPE_H

namespace ptk {

struct PlainType::Face
{
    FT_Face type;
    cairo_font_face_t* drawn;
};

namespace {

constexpr auto kFolder = "/usr/share/fonts/truetype/dejavu/";
constexpr auto kPlain = "DejaVuSansMono.ttf";
constexpr auto kBold = "DejaVuSansMono-Bold.ttf";

constexpr FT_ULong kFirstAccent = 0x300; // combining accents: characters that are drawn over the one before
constexpr FT_ULong kFirstGreek = 0x370;
constexpr FT_ULong kBehindCyrillic = 0x483;

// Takes the first character off a UTF-8 text; `bytes` is its length. REQUIRES: the text is valid and not empty.
FT_ULong TakeCharacter(const char*& text, int& bytes)
{
    const auto byte = [&](int at) { return static_cast<unsigned char>(text[at]); };
    bytes = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
    FT_ULong character = bytes == 1 ? byte(0) : byte(0) & (0x7FU >> static_cast<unsigned>(bytes));
    for (int at = 1; at < bytes; ++at) {
        character = character << 6U | (byte(at) & 0x3FU);
    }
    text += bytes;
    return character;
}

bool StandsAlone(FT_ULong character)
{
    return character < kFirstAccent || (character >= kFirstGreek && character < kBehindCyrillic);
}

FT_Face OpenType(const char* name)
{
    static FT_Library library = [] {
        FT_Library made = nullptr;
        return FT_Init_FreeType(&made) == 0 ? made : nullptr;
    }();
    FT_Face face = nullptr;
    const std::string path = std::string(kFolder) + name;
    return library != nullptr && FT_New_Face(library, path.c_str(), 0, &face) == 0 ? face : nullptr;
}

} // namespace

std::unique_ptr<PlainType> PlainType::Open(double characterWidth, double lineHeight)
{
    const auto opened = [](const char* name) {
        const FT_Face type = OpenType(name);
        return Face{type, type == nullptr ? nullptr : cairo_ft_font_face_create_for_ft_face(type, FT_LOAD_NO_HINTING)};
    };
    static const Face plain = opened(kPlain);
    static const Face bold = opened(kBold);
    const FT_Face type = plain.type;
    if (type == nullptr || bold.type == nullptr || FT_Load_Char(type, '0', FT_LOAD_NO_SCALE) != 0) {
        return nullptr;
    }
    std::unique_ptr<PlainType> made(new PlainType);
    made->m_plain = &plain;
    made->m_bold = &bold;
    made->m_advance = characterWidth;
    made->m_size = characterWidth * type->units_per_EM / static_cast<double>(type->glyph->metrics.horiAdvance);
    const double unit = made->m_size / type->units_per_EM;
    const double spare = lineHeight - (type->ascender - type->descender) * unit;
    made->m_ascent = type->ascender * unit + spare / 2;
    return made;
}

bool PlainType::Draw(cairo_t* context, const char* text, bool bold, double x, double y) const
{
    const Face& face = bold ? *m_bold : *m_plain;
    std::vector<cairo_glyph_t> glyphs;
    std::vector<cairo_text_cluster_t> clusters;
    for (const char* rest = text; *rest != '\0';) {
        int bytes = 0;
        const FT_ULong character = TakeCharacter(rest, bytes);
        const FT_UInt glyph = StandsAlone(character) ? FT_Get_Char_Index(face.type, character) : 0;
        if (glyph == 0) {
            return false;
        }
        glyphs.push_back({glyph, x + static_cast<double>(glyphs.size()) * m_advance, y});
        clusters.push_back({bytes, 1});
    }
    cairo_set_font_face(context, face.drawn);
    cairo_set_font_size(context, m_size);
    cairo_show_text_glyphs(context, text, static_cast<int>(std::strlen(text)), glyphs.data(), static_cast<int>(glyphs.size()),
                           clusters.data(), static_cast<int>(clusters.size()), cairo_text_cluster_flags_t{});
    return true;
}

} // namespace ptk
