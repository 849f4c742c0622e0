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

// Columns are addressed by name in any letter case, or by the ordinal that Column() gave, which the loaders use on their hot path.
// The typed readers raise Failure 94 for a null, 13 for what has no such meaning, 6 for what does not fit; all readers raise 3021 when no row
// is current and 9 for a column that is not there.
class RecordSet
{
public:
    std::int32_t RecordCount() const; // all rows, whether visited or not
    bool EndOfFile() const;
    void MoveFirst(); // raises Failure 3021 on no rows
    void MoveNext();  // past the last row EndOfFile() is true

    std::size_t Column(std::string_view name) const; // raises Failure 9

    Value Field(std::string_view name) const { return Field(Column(name)); }
    Value Field(std::size_t column) const; // typed by the column's declaration; null stays null

    bool IsNull(std::size_t column) const;
    std::int32_t Int32At(std::size_t column) const;
    std::int16_t Int16At(std::size_t column) const;
    float SingleAt(std::size_t column) const;
    bool BooleanAt(std::size_t column) const;
    DateTime DateTimeAt(std::size_t column) const; // no allocation for the stored form YYYY-MM-DD HH:MM:SS
    std::string_view TextAt(std::size_t column) const; // valid as long as the record set

    // How the engine hands the rows over; defined beside the engine.
    class Builder;

private:
    // PRIVATE LAYOUT: owned by the engine's implementer.
};

} // namespace ptk
