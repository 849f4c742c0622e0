// What the columns of a file of punches mean: by their headings, or as somebody said.
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

// Whether somebody came or went.
enum class Direction
{
    In,
    Out
};

// What was said of a file's headings and of its words for directions.
struct SheetWords
{
    std::vector<std::pair<std::string, SheetColumn>> columns;  // by the file's heading, normalized
    std::vector<std::pair<std::string, Direction>> directions; // by the file's word, normalized
};

// FILE=OURS,...: ours is one of the headings, In or Out. Nothing for what is no such text.
[[nodiscard]] std::optional<SheetWords> ReadSheetWords(std::string_view text);

// Where the columns of a file stand. What stands in further columns is left aside.
class SheetColumns
{
public:
    // Raises a failure without a number, one sentence, for a heading that stands twice or that was told and is not there, and for headings
    // that do not make pairs (start, end) or events (time, direction) of one person each.
    SheetColumns(std::span<const std::string> headings, SheetWords words);

    [[nodiscard]] bool AreEvents() const { return Has(SheetColumn::Time); }
    [[nodiscard]] bool Has(SheetColumn column) const { return m_places[Index(column)].has_value(); }

    // The column by which people are told.
    [[nodiscard]] SheetColumn Person() const { return m_person; }

    // As it stands in the file.
    [[nodiscard]] const std::string& Heading(SheetColumn column) const { return m_headings.At(*m_places[Index(column)]); }

    // Of a line, without the blanks around; empty where the line ends before it. REQUIRES: Has(column).
    [[nodiscard]] std::string_view Cell(std::span<const std::string> cells, SheetColumn column) const;

    [[nodiscard]] const SheetHeadings& Headings() const { return m_headings; }

    // Nothing for a word that is no direction.
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
