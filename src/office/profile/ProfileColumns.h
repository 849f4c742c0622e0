// The columns that a profile can have: everything that the reports and the payday overview show about a person.
#pragma once

#include "office/profile/PayTable.h"
#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace ptk {

enum class HoursKind : std::uint8_t
{
    Regular,
    Overtime
};

// One row of a table.
struct PayRowScope
{
    const PaidPerson& person;
    std::optional<HoursKind> kind; // none if the row is about all hours of the person
    const std::string& code;       // of the kind; empty without one
};

struct PlainFigure
{
    std::string text; // with a decimal point
};

// The value of a cell: nothing, a text, a figure, hours, or a day.
using PayCell = std::variant<std::monostate, std::string, PlainFigure, PaidHours, DateTime>;

// In which rows a column stands if a person has one row for each kind of hours. What people add up must not stand there twice.
enum class StandsIn : std::uint8_t
{
    EachRow,
    FirstRow,
    RegularRow,
    OvertimeRow
};

struct ProfileColumn
{
    std::string_view name; // as it is stored; also what its heading is at first
    StandsIn rows;
    bool ofOverview; // REQUIRES the person's overview
    PayCell (*cell)(const PayRowScope& row);
};

[[nodiscard]] std::span<const ProfileColumn> ProfileColumns();

// The column with exactly this name; nullptr if there is none.
[[nodiscard]] const ProfileColumn* FindProfileColumn(std::string_view name);

// The column's value in this row; nothing if it stands in another row. REQUIRES: the person's overview if the column is ofOverview.
[[nodiscard]] PayCell CellOf(const ProfileColumn& column, const PayRowScope& row);

} // namespace ptk
