// The tables of a database that hold people's data, how it is handed on, and its trail, column by column.
#pragma once

#include <cstdint>
#include <span>

namespace ptk {

enum class ColumnKind : std::uint8_t
{
    Integer, // 32 bits
    Long,    // 64 bits
    Text,
    Date, // a date-time of the years 100 to 9999, to the second
    Single,
    Flag,
    Json // text that is JSON
};

struct StoredColumn
{
    const char* name;
    ColumnKind kind;
    bool mayLack = false; // a file of an earlier version, which has the table
};

struct StoredTable
{
    const char* name;
    std::span<const StoredColumn> columns; // in their order; the first is the key, where there is one
    bool hasKey;                           // else it holds one row
};

// All of them, the trail last.
[[nodiscard]] std::span<const StoredTable> StoredTables();

} // namespace ptk
