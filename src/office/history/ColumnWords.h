// What people call the columns of the database, and how their moments are shown.
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
    Employee // an EmployeeID
};

struct ColumnWords
{
    const char* words; // "pay rate"; nullptr for a column without words
    ColumnShape shape;
};

// Columns of one name are called the same in all tables.
[[nodiscard]] ColumnWords WordsOf(std::string_view column);

// The moment in the column's form: "03/05/2003 08:00 AM", "03/05/2003" for a day, "08:00 AM" for a time of day, "none" for the zero
// date-time. Seconds are shown only if they are not 0.
[[nodiscard]] std::string MomentText(DateTime moment, ColumnShape shape);

} // namespace ptk
