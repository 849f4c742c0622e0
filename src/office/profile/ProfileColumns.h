// The columns that a profile can have: all that the reports and the payday overview know of a person.
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
    std::optional<HoursKind> kind; // none where the row is all of the person's
    const std::string& code;       // of the kind; empty without one
};

struct PlainFigure
{
    std::string text; // with a decimal point
};

// Nothing, a text, a figure, hours, a day.
using PayCell = std::variant<std::monostate, std::string, PlainFigure, PaidHours, DateTime>;

// In which rows of a person with one row a kind of hours: what is added up must not stand there twice.
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

// By exactly this name; nullptr without one.
[[nodiscard]] const ProfileColumn* FindProfileColumn(std::string_view name);

// What stands there in this row, nothing included.
[[nodiscard]] PayCell CellOf(const ProfileColumn& column, const PayRowScope& row);

} // namespace ptk
