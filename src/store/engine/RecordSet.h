// The result of a select: a snapshot of all its rows in memory, so that the count is true at once and the file need not stay open.
#pragma once

#include "platform/text/DateTime.h"
#include "platform/text/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// Starts on its first row. Columns are addressed by name in any letter case, or by the ordinal that Column() gave, which the loaders use on
// their hot path. The typed readers raise Failure 94 for a null, 13 for what has no such meaning, 6 for what does not fit; all readers
// raise 3021 when no row is current and 9 for a column that is not there.
class RecordSet
{
public:
    // All rows, whether visited or not.
    [[nodiscard]] std::int32_t RecordCount() const { return m_rowCount; }

    [[nodiscard]] bool EndOfFile() const { return m_row >= m_rowCount; }

    // Raises Failure 3021 on no rows.
    void MoveFirst();

    // Past the last row EndOfFile() is true; raises Failure 3021 when it already is.
    void MoveNext();

    // Raises Failure 9.
    [[nodiscard]] std::size_t Column(std::string_view name) const;

    [[nodiscard]] Value Field(std::string_view name) const { return Field(Column(name)); }

    // Typed by the column's declaration; null stays null.
    [[nodiscard]] Value Field(std::size_t column) const;

    [[nodiscard]] bool IsNull(std::size_t column) const;
    [[nodiscard]] std::int64_t Int64At(std::size_t column) const;
    [[nodiscard]] std::int32_t Int32At(std::size_t column) const;
    [[nodiscard]] std::int16_t Int16At(std::size_t column) const;
    [[nodiscard]] float SingleAt(std::size_t column) const;
    [[nodiscard]] bool BooleanAt(std::size_t column) const;

    // Of the stored form YYYY-MM-DD HH:MM:SS of a real moment alone: any other text would sort and be searched as what it is not. No
    // allocation.
    [[nodiscard]] DateTime DateTimeAt(std::size_t column) const;

    // Of text cells only (13); valid as long as the record set.
    [[nodiscard]] std::string_view TextAt(std::size_t column) const;

    // For telling people of a value, whatever it is: as it is stored, on one line, texts in quotes and cut where they are long; NULL for a
    // null.
    [[nodiscard]] std::string Shown(std::size_t column) const;

    // Whether it is a date-time, as text of the stored form YYYY-MM-DD HH:MM:SS alone: searches compare texts and pass over others.
    [[nodiscard]] bool HasStoredDate(std::size_t column) const;

    // How the engine hands the rows over; defined beside the engine.
    class Builder;

private:
    // What a column was declared as; Any for expressions and other tools' types, whose values go by how they are stored.
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

    // Cells of all rows stand in one row after the other, their texts in one string: few allocations for any number of rows.
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
