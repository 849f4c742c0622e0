// The result of a select: a snapshot of all its rows in memory, so that the count is true at once and the file need not stay open.
#pragma once

#include "platform/DateTime.h"
#include "platform/Value.h"

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
    std::int32_t RecordCount() const { return m_rowCount; } // all rows, whether visited or not
    bool EndOfFile() const { return m_row >= m_rowCount; }
    void MoveFirst(); // raises Failure 3021 on no rows
    void MoveNext();  // past the last row EndOfFile() is true; raises Failure 3021 when it already is

    std::size_t Column(std::string_view name) const; // raises Failure 9

    Value Field(std::string_view name) const { return Field(Column(name)); }
    Value Field(std::size_t column) const; // typed by the column's declaration; null stays null

    bool IsNull(std::size_t column) const;
    std::int64_t Int64At(std::size_t column) const;
    std::int32_t Int32At(std::size_t column) const;
    std::int16_t Int16At(std::size_t column) const;
    float SingleAt(std::size_t column) const;
    bool BooleanAt(std::size_t column) const;
    DateTime DateTimeAt(std::size_t column) const;     // no allocation for the stored form YYYY-MM-DD HH:MM:SS
    std::string_view TextAt(std::size_t column) const; // of text cells only (13); valid as long as the record set

    // For telling people of a value, whatever it is: as it is stored, on one line, texts in quotes and cut where they are long; NULL for a
    // null.
    std::string Shown(std::size_t column) const;
    bool HasStoredDate(std::size_t column) const; // in the stored form YYYY-MM-DD HH:MM:SS, the only one that searches find

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

    const Cell& At(std::size_t column) const;
    std::string_view TextOf(const Cell& cell) const { return {m_texts.data() + cell.content, cell.size}; }
    Value Stored(const Cell& cell) const;

    std::vector<Heading> m_headings;
    std::vector<Cell> m_cells;
    std::string m_texts;
    std::int32_t m_rowCount = 0;
    std::int32_t m_row = 0; // the current row, from 0
};

} // namespace ptk
