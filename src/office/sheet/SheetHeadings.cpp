#include "office/sheet/SheetHeadings.h"

#include "office/sheet/SheetFile.h"
#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace ptk {

namespace {

constexpr auto kTwice = "the heading {} stands twice";
constexpr auto kStray = "{}: text behind the closing quotation mark";
constexpr auto kNoColumn = "{}: a cell without a heading";

} // namespace

std::string NormalizedWord(std::string_view text)
{
    std::string normalized = LowerCase(text);
    std::erase_if(normalized, IsBlank);
    return normalized;
}

SheetHeadings::SheetHeadings(std::span<const std::string> headings)
{
    std::set<std::string_view> seen;
    m_normalized.reserve(headings.size()); // so that the views in `seen` stay valid
    for (const std::string& heading : headings) {
        m_shown.push_back(Shortened(Trimmed(heading)));
        m_normalized.push_back(NormalizedWord(heading));
        if (!m_normalized.back().empty() && !seen.insert(m_normalized.back()).second) {
            throw Failure(0, "PTK", fmt::format(kTwice, m_shown.back()));
        }
    }
}

std::optional<std::size_t> SheetHeadings::Find(std::string_view normalized) const
{
    const auto found = std::find(m_normalized.begin(), m_normalized.end(), normalized);
    return found == m_normalized.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - m_normalized.begin()));
}

void SheetHeadings::RefuseStrange(const CsvRecord& record) const
{
    if (record.strayCell != 0) {
        throw LineRefused{fmt::format(kStray, HeadingOrNumber(record.strayCell - 1))};
    }
    for (std::size_t place = m_shown.size(); place < record.cells.size(); ++place) {
        if (!Trimmed(record.cells[place]).empty()) {
            throw LineRefused{fmt::format(kNoColumn, HeadingOrNumber(place))};
        }
    }
}

// The heading, or the column's number, counted from 1, if it has none.
std::string SheetHeadings::HeadingOrNumber(std::size_t place) const
{
    const bool named = place < m_shown.size() && !m_shown[place].empty();
    return named ? m_shown[place] : fmt::format("column {}", place + 1);
}

} // namespace ptk
