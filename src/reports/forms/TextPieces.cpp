#include "reports/forms/TextPieces.h"

#include "platform/text/Characters.h"
#include "platform/text/Text.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <iterator>

namespace ptk {

namespace {

constexpr std::size_t kTab = 8;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD

struct Range
{
    char32_t first;
    char32_t last;
};

// Which characters are two columns wide, roughly as in typefaces. They decide where a column begins, never whether something is printed.
constexpr Range kWide[] = {{0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xA960, 0xA97F},
                           {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},
                           {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};
constexpr Range kNone[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A}, {0x064B, 0x065F}, {0x1AB0, 0x1AFF},
                           {0x1DC0, 0x1DFF}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

template <std::size_t Count>
bool IsIn(const Range (&ranges)[Count], char32_t character)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [&](const Range& range) { return character >= range.first && character <= range.last; });
}

std::size_t WidthOf(char32_t character)
{
    if (character < kNone[0].first) {
        return 1;
    }
    return IsIn(kWide, character) ? 2 : IsIn(kNone, character) ? 0 : 1;
}

bool IsControl(char32_t character)
{
    return character < ' ' || (character >= 0x7F && character < 0xA0);
}

// Takes the beginning of the text that fits into this many columns off it, at least one character.
std::string TakeWidth(std::string_view& text, std::size_t columns)
{
    std::string taken;
    for (std::size_t width = 0; !text.empty();) {
        std::string_view rest = text;
        const char32_t character = TakeCharacter(rest);
        width += WidthOf(character);
        if (width > columns && !taken.empty()) {
            break;
        }
        const bool shown = !IsControl(character) && Utf8Length(text) > 0;
        taken += shown ? text.substr(0, text.size() - rest.size()) : kReplacement;
        text = rest;
    }
    return taken;
}

class PieceMaker
{
public:
    explicit PieceMaker(std::size_t columns) : m_columns(columns) {}

    void AddGap(std::string_view gap);
    void AddWord(std::string_view word);
    std::vector<std::vector<TextPiece>> Finish();

private:
    void NextLine(std::size_t column);

    const std::size_t m_columns;
    std::vector<std::vector<TextPiece>> m_lines{1};
    std::size_t m_column = 0;     // the column on paper
    std::size_t m_characters = 0; // the column when every character counts as one
    bool m_joined = false;        // after a piece came one blank: the next word joins the piece
};

void PieceMaker::AddGap(std::string_view gap)
{
    const std::size_t before = m_column;
    for (const char c : gap) {
        m_column = c == '\t' ? (m_column / kTab + 1) * kTab : m_column + 1;
        m_characters = c == '\t' ? m_column : m_characters + 1;
    }
    m_joined = gap == " " && !m_lines.back().empty();
    if (gap.size() > 1) {
        m_column = std::max(before + 1, m_characters);
        m_characters = m_column;
    }
}

void PieceMaker::AddWord(std::string_view word)
{
    const std::size_t width = ptk::WidthOf(word);
    if (m_column + width > m_columns && !m_lines.back().empty()) {
        const std::size_t under = m_lines.back().back().column;
        const std::size_t below = !m_joined ? m_column : under <= m_columns / 2 ? under : 0;
        NextLine(std::min(below, m_columns - std::min(width, m_columns)));
    }
    m_characters += CharacterCount(word);
    if (m_joined) {
        m_lines.back().back().text += ' ' + TakeWidth(word, width); // the whole word
        m_column += width;
    }
    while (!word.empty()) {
        m_column = std::min(m_column, m_columns - 1);
        m_lines.back().push_back({m_column, 0, TakeWidth(word, m_columns - m_column)});
        m_column += ptk::WidthOf(m_lines.back().back().text);
        if (!word.empty()) {
            NextLine(0);
        }
    }
    m_joined = false;
}

void PieceMaker::NextLine(std::size_t column)
{
    m_lines.emplace_back();
    m_column = column;
    m_characters = column;
    m_joined = false;
}

std::vector<std::vector<TextPiece>> PieceMaker::Finish()
{
    for (auto& line : m_lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            line[i].room = (i + 1 < line.size() ? line[i + 1].column : m_columns) - line[i].column;
        }
    }
    return std::move(m_lines);
}

} // namespace

std::vector<std::vector<TextPiece>> PiecesOf(std::string_view line, std::size_t columns)
{
    PieceMaker maker(columns);
    while (!line.empty()) {
        const bool gap = IsBlank(line.front());
        const auto end = std::find_if(line.begin(), line.end(), [&](char c) { return IsBlank(c) != gap; });
        const auto length = static_cast<std::size_t>(end - line.begin());
        if (gap) {
            maker.AddGap(line.substr(0, length));
        } else {
            maker.AddWord(line.substr(0, length));
        }
        line.remove_prefix(length);
    }
    return maker.Finish();
}

std::size_t WidthOf(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty()) {
        width += WidthOf(TakeCharacter(text));
    }
    return width;
}

} // namespace ptk
