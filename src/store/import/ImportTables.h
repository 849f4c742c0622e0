// What an import fills: the tables of people's data with their columns, and the values that stand where an older database has none.
#pragma once

#include "platform/text/Value.h"

#include <span>

namespace ptk {

enum class ImportKind
{
    Key, // 1 to 2,147,483,646
    Text,
    Long,   // 32 bits
    Short,  // 16 bits
    Single, // finite
    Flag,
    Date,
    Moment,   // a row makes no sense without it: an impossible one leaves the row out
    TimeOfDay // of which the date part is dropped
};

struct ImportColumn
{
    const char* name;
    ImportKind kind;
    Value absent;     // where the older table has no such column
    Value empty = {}; // where its row has no value
};

struct ImportTable
{
    const char* name;
    std::span<const ImportColumn> columns; // the key first, where it has one
    bool hasKey;                           // a table without a key holds one row
};

// The tables in the order in which they are read: employees come before the records that refer to them.
enum class ImportTableId
{
    Employee,
    Company,
    TimeRecord,
    System
};
inline constexpr std::size_t kImportTableCount = 4;

[[nodiscard]] const ImportTable& ImportTableOf(ImportTableId id);

} // namespace ptk
