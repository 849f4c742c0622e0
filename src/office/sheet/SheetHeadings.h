// The headings of a CSV file, by which reasons name its columns.
#pragma once

#include "platform/text/CsvReader.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// Thrown to refuse one line. The reason begins with the column's name.
struct LineRefused
{
    std::string reason;
};

// The form in which headings and words of a file are compared: without blanks, and in lower case as to A to Z.
[[nodiscard]] std::string NormalizedWord(std::string_view text);

class SheetHeadings
{
public:
    // Raises a failure without a number for a heading that stands twice.
    explicit SheetHeadings(std::span<const std::string> headings);

    // The heading for people: as the file has it, without blanks around it, a long one cut. REQUIRES: `place`, counted from 0, is below
    // Count().
    [[nodiscard]] const std::string& At(std::size_t place) const { return m_shown[place]; }

    // The heading in its normalized form. REQUIRES: `place` is below Count().
    [[nodiscard]] const std::string& NormalizedAt(std::size_t place) const { return m_normalized[place]; }

    // The index of the heading with this normalized form.
    [[nodiscard]] std::optional<std::size_t> Find(std::string_view normalized) const;

    [[nodiscard]] std::size_t Count() const { return m_shown.size(); }

    // Throws LineRefused for text behind a closing quotation mark and for a cell that has no heading.
    void RefuseStrange(const CsvRecord& record) const;

private:
    [[nodiscard]] std::string HeadingOrNumber(std::size_t place) const;

    std::vector<std::string> m_shown;
    std::vector<std::string> m_normalized;
};

} // namespace ptk
