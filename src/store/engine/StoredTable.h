// The tables of a database that hold people's data, how it is handed on, and its trail, column by column.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

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

// What is said of a column besides its kind.
enum class ColumnRule : std::uint8_t
{
    None,
    MayLack,       // in a file of an earlier version, which has the table
    Unread,        // written, never read back by the program
    AnyNumber,     // also one that is not greater than 0 means something
    Short,         // 16 bits in the program and in older databases
    Moment,        // without which the row makes no sense: an import leaves out one whose value is impossible
    TrueWhenAbsent // in older databases
};

struct StoredColumn
{
    const char* name;
    ColumnKind kind;
    ColumnRule rule = ColumnRule::None;
};

struct StoredTable
{
    const char* name;
    std::span<const StoredColumn> columns; // in their order; the first is the key, where there is one
    bool hasKey;                           // else it holds one row
};

// Whose changes have been told as long as there is a trail, in the order in which their triggers are made.
inline constexpr const char* kFirstToldTables[] = {"TimeRecord", "Employee", "Company", "_System", "_CheckLimits"};

// All of them, the trail last.
[[nodiscard]] std::span<const StoredTable> StoredTables();

// REQUIRES a name among them, in their spelling.
[[nodiscard]] const StoredTable& StoredTableOf(std::string_view name);

} // namespace ptk
