// The tables of a database that are copied whole, column by column: people's data, the settings, paydays, profiles and the edit trail.
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

// What holds for a column besides its kind.
enum class ColumnRule : std::uint8_t
{
    None,
    MayLack,       // in a file of an earlier version, which has the table
    Unread,        // written, never read back by the program
    AnyNumber,     // a number below 1 means something, too
    Short,         // 16 bits in the program and in older databases
    Moment,        // without which the row makes no sense: an import leaves out one whose value is impossible
    TrueWhenAbsent // in older databases
};

// How people are told a column's values, where its kind does not say it.
enum class ColumnTold : std::uint8_t
{
    ByKind,
    Day,
    Weekday, // 0 Sunday to 6 Saturday
    Employee // by name
};

struct StoredColumn
{
    const char* name;
    ColumnKind kind;
    const char* words = nullptr; // what people call the column, "pay rate"; nullptr where they are not told of it
    ColumnRule rule = ColumnRule::None;
    ColumnTold told = ColumnTold::ByKind;
};

struct StoredTable
{
    const char* name;
    std::span<const StoredColumn> columns; // in their order; the first is the key, where there is one
    bool hasKey;                           // else it holds one row
};

// The tables whose changes the edit trail has recorded since its first version, in the order in which their triggers are made.
inline constexpr const char* kFirstToldTables[] = {"TimeRecord", "Employee", "Company", "_System", "_CheckLimits"};

// All these tables, the trail last.
[[nodiscard]] std::span<const StoredTable> StoredTables();

// The table of that name. REQUIRES: the name is one of StoredTables, spelled as there.
[[nodiscard]] const StoredTable& StoredTableOf(std::string_view name);

} // namespace ptk
