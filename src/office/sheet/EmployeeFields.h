// What a file of employees holds of each: the columns of the employee records, as texts of the file and as values.
#pragma once

#include "platform/text/Value.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

// In the order of reports/EmployeeRecords.
enum class EmployeeField : std::uint8_t
{
    Number,
    FirstName,
    LastName,
    Ssn,
    Address1,
    Address2,
    City,
    State,
    Zip,
    Phone,
    DateOfBirth,
    Active,
    HireDate,
    ReleaseDate,
    PayRate,
    OvertimePayRate
};
inline constexpr std::size_t kEmployeeFieldCount = 16;

// "Employee Number".
[[nodiscard]] std::string HeadingOf(EmployeeField field);

// Of the table Employee, by EmployeeField.
[[nodiscard]] std::span<const char* const> StoredEmployeeColumns();

// By its heading, normalized; the number also by "number", the social security number by "ssn".
[[nodiscard]] std::optional<EmployeeField> FindEmployeeField(std::string_view normalized);

// FIELD,...: headings of what can be changed of somebody who is known, in any letter case, blanks aside. Nothing for what is no such text.
[[nodiscard]] std::optional<std::vector<EmployeeField>> ReadEmployeeFields(std::string_view text);

// As the employee records print it.
[[nodiscard]] std::string PrintedField(EmployeeField field, const Value& value);

// Whether a cell holds what the employee records as CSV would hold, outer blanks aside.
[[nodiscard]] bool IsPrintedAs(EmployeeField field, const Value& value, std::string_view cell);

// What the cell means; an empty one is an empty text, no day, or no rate. Throws LineRefused, the heading before the reason, for what is no
// number, rate or day, neither true nor false, and for texts with control characters or of more than 255 characters. `cell` has no blanks
// around it.
[[nodiscard]] Value ReadField(EmployeeField field, std::string_view cell, const std::string& heading);

} // namespace ptk
