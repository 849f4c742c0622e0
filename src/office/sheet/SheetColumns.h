// Finds out what the columns of a file of punches mean: by their headings, or by what the user said.
#pragma once

#include "office/sheet/SheetHeadings.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ptk {

enum class SheetColumn : std::uint8_t
{
    Employee, // a number, an ID, a name or a social security number
    Number,
    Id,
    Name,
    Ssn,
    Start,
    End,
    Time,
    Direction,
    Date
};
inline constexpr std::size_t kSheetColumnCount = 10;

// Whether somebody clocked in or out.
enum class Direction
{
    In,
    Out
};

// What the user said about a file's headings and its words for in and out.
struct SheetWords
{
    std::vector<std::pair<std::string, SheetColumn>> columns;  // by the file's heading, normalized
    std::vector<std::pair<std::string, Direction>> directions; // by the file's word, normalized
};

// Reads FILE=OURS,...: a word of the file, and one of our headings, In or Out. Nothing if the text is not of this form.
[[nodiscard]] std::optional<SheetWords> ReadSheetWords(std::string_view text);

// Which columns a file has and where. Other columns are left aside.
class SheetColumns
{
public:
    // Raises a failure without a number, one sentence, for a heading that stands twice, for one that `words` names and the file lacks, and
    // for headings that do not make pairs (start, end) or events (time, direction) of one person each.
    SheetColumns(std::span<const std::string> headings, SheetWords words);

    [[nodiscard]] bool AreEvents() const { return Has(SheetColumn::Time); }
    [[nodiscard]] bool Has(SheetColumn column) const { return m_places[Index(column)].has_value(); }

    // The column that says whose punch a line is.
    [[nodiscard]] SheetColumn Person() const { return m_person; }

    // The column's heading, as the file has it. REQUIRES: Has(column).
    [[nodiscard]] const std::string& Heading(SheetColumn column) const { return m_headings.At(*m_places[Index(column)]); }

    // The column's cell in a line, without blanks around it; empty if the line is too short. REQUIRES: Has(column).
    [[nodiscard]] std::string_view Cell(std::span<const std::string> cells, SheetColumn column) const;

    [[nodiscard]] const SheetHeadings& Headings() const { return m_headings; }

    // The direction; nothing for a word that means none.
    [[nodiscard]] std::optional<Direction> ReadDirection(std::string_view word) const;

private:
    [[nodiscard]] static std::size_t Index(SheetColumn column) { return static_cast<std::size_t>(column); }
    void PlaceTold();
    void PlaceByName();
    [[nodiscard]] std::optional<SheetColumn> NamedAt(std::size_t place) const;
    void Place(SheetColumn column, std::size_t place);
    void ChoosePerson();
    void RequireMoments() const;

    SheetHeadings m_headings;
    SheetWords m_words;
    std::optional<std::size_t> m_places[kSheetColumnCount];
    SheetColumn m_person = SheetColumn::Employee;
};

} // namespace ptk
