#include "office/sheet/SheetHeadings.h"

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
    std::set<std::string> seen;
    for (const std::string& heading : headings) {
        std::string normalized = NormalizedWord(heading);
        if (!normalized.empty() && !seen.insert(std::move(normalized)).second) {
            throw Failure(0, "PTK", fmt::format(kTwice, Trimmed(heading)));
        }
        m_headings.emplace_back(Trimmed(heading));
    }
}

std::optional<std::size_t> SheetHeadings::Find(std::string_view normalized) const
{
    const auto found = std::find_if(m_headings.begin(), m_headings.end(),
                                    [&](const std::string& heading) { return NormalizedWord(heading) == normalized; });
    return found == m_headings.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - m_headings.begin()));
}

void SheetHeadings::RefuseStrange(const CsvRecord& record) const
{
    if (record.strayCell != 0) {
        throw LineRefused{fmt::format(kStray, NameOf(record.strayCell - 1))};
    }
    for (std::size_t place = m_headings.size(); place < record.cells.size(); ++place) {
        if (!Trimmed(record.cells[place]).empty()) {
            throw LineRefused{fmt::format(kNoColumn, NameOf(place))};
        }
    }
}

// Its heading, or its number counted from 1 where it has none.
std::string SheetHeadings::NameOf(std::size_t place) const
{
    const bool named = place < m_headings.size() && !m_headings[place].empty();
    return named ? m_headings[place] : fmt::format("column {}", place + 1);
}

} // namespace ptk
