// The fields of an employee in a file of employees, which are the columns of the employee records: how they are named, read and printed.
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

// The field's heading in the employee records: "Employee Number".
[[nodiscard]] std::string HeadingOf(EmployeeField field);

// The columns of the table Employee, by EmployeeField.
[[nodiscard]] std::span<const char* const> StoredEmployeeColumns();

// The field with this normalized heading. The employee number is also "number", the social security number also "ssn".
[[nodiscard]] std::optional<EmployeeField> FindEmployeeField(std::string_view normalized);

// Reads FIELD,...: the headings of fields that can be changed of a known employee, in any letter case, with or without blanks. Nothing if
// the text is not of this form.
[[nodiscard]] std::optional<std::vector<EmployeeField>> ReadEmployeeFields(std::string_view text);

// The field's text, as the employee records print it.
[[nodiscard]] std::string PrintedField(EmployeeField field, const Value& value);

// Whether the cell holds what the employee records as CSV would hold, apart from blanks around it.
[[nodiscard]] bool IsPrintedAs(EmployeeField field, const Value& value, std::string_view cell);

// The cell's value; an empty cell is an empty text, no day, or no rate. Throws LineRefused, the heading before the reason, for what is no
// number, rate or day, neither true nor false, and for texts with control characters or more than 255 characters. REQUIRES: no blanks
// around `cell`.
[[nodiscard]] Value ReadField(EmployeeField field, std::string_view cell, const std::string& heading);

} // namespace ptk
