// What people call the columns of the database, and how they are told moments.
#pragma once

#include "platform/text/DateTime.h"

#include <string>
#include <string_view>

namespace ptk {

enum class ColumnShape
{
    Plain,
    Moment,
    Day,
    Weekday, // 0 Sunday to 6 Saturday
    Flag,
    Employee // a number of one
};

struct ColumnWords
{
    const char* words; // "pay rate"; nullptr for a column that nobody has words for
    ColumnShape shape;
};

// Columns of one name are called the same in all tables.
[[nodiscard]] ColumnWords WordsOf(std::string_view column);

// "03/05/2003 08:00 AM", "03/05/2003" of a day, "08:00 AM" of a time of day, "none" of the zero date-time.
[[nodiscard]] std::string MomentText(DateTime moment, ColumnShape shape);

} // namespace ptk
