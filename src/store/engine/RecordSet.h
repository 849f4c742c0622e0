// The result of a select: a snapshot of all its rows in memory, so that the count is true at once and the file need not stay open.
#pragma once

#include "platform/text/DateTime.h"
#include "platform/text/Value.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// A record set starts on its first row. Columns are addressed by name in any letter case, or by the ordinal that Column() gave, which is
// faster for many rows. The typed readers raise Failure 94 for a null, 13 for a value without such a meaning, 6 for one that does not fit;
// all readers raise 3021 when no row is current and 9 for a column that is not there.
class RecordSet
{
public:
    // The number of all rows, whether visited or not.
    [[nodiscard]] std::int32_t RecordCount() const { return m_rowCount; }

    [[nodiscard]] bool EndOfFile() const { return m_row >= m_rowCount; }

    // Goes to the first row; raises Failure 3021 where there are none.
    void MoveFirst();

    // Goes to the next row; behind the last one EndOfFile() is true. Raises Failure 3021 when it already is.
    void MoveNext();

    // The ordinal of a column; raises Failure 9 where there is none of that name.
    [[nodiscard]] std::size_t Column(std::string_view name) const;

    [[nodiscard]] Value Field(std::string_view name) const { return Field(Column(name)); }

    // The value in the type that its column was declared with; null stays null.
    [[nodiscard]] Value Field(std::size_t column) const;

    [[nodiscard]] bool IsNull(std::size_t column) const;
    [[nodiscard]] std::int64_t Int64At(std::size_t column) const;
    [[nodiscard]] std::int32_t Int32At(std::size_t column) const;
    [[nodiscard]] std::int16_t Int16At(std::size_t column) const;
    [[nodiscard]] float SingleAt(std::size_t column) const;
    [[nodiscard]] bool BooleanAt(std::size_t column) const;

    // A date-time in the stored form YYYY-MM-DD HH:MM:SS of a real moment; any other form raises 13, because searches and sorting would
    // take it for what it is not. No allocation.
    [[nodiscard]] DateTime DateTimeAt(std::size_t column) const;

    // The text of a text cell; any other raises 13. Valid as long as the record set.
    [[nodiscard]] std::string_view TextAt(std::size_t column) const;

    // The value for people to read, whatever it is: as it is stored, on one line, texts in quotes and cut where they are long; NULL for a
    // null.
    [[nodiscard]] std::string TextToShow(std::size_t column) const;

    // Whether the cell is a date-time in the stored form YYYY-MM-DD HH:MM:SS: searches compare texts and miss any other.
    [[nodiscard]] bool HasStoredDate(std::size_t column) const;

    // Through this class the engine fills a record set; see RecordSetBuilder.h.
    class Builder;

private:
    // The type that a column was declared with; Any for expressions and other tools' types, whose values are read as they are stored.
    enum class Type : std::uint8_t
    {
        Any,
        Integer,
        DateTime,
        Single,
        Boolean,
        Text
    };
    enum class Kind : std::uint8_t
    {
        Null,
        Integer,
        Real,
        DateTime,
        Text,
        Binary
    };

    struct Heading
    {
        std::string name;
        Type type = Type::Any;
    };

    // A cell. All rows' cells stand one after the other in one array, their texts in one string: few allocations for any number of rows.
    struct Cell
    {
        std::int64_t content = 0; // integer, bits of the real, seconds of the date-time, or the text's offset
        std::uint32_t size = 0;   // of the text, in bytes
        Kind kind = Kind::Null;
    };

    [[nodiscard]] const Cell& At(std::size_t column) const;
    [[nodiscard]] std::string_view TextOf(const Cell& cell) const { return {m_texts.data() + cell.content, cell.size}; }
    [[nodiscard]] Value Stored(const Cell& cell) const;

    std::vector<Heading> m_headings;
    std::vector<Cell> m_cells;
    std::string m_texts;
    std::int32_t m_rowCount = 0;
    std::int32_t m_row = 0; // the current row, from 0
};

} // namespace ptk
