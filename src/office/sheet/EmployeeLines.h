// Reads the lines of a file of employees and compares them with the stored employees.
#pragma once

#include "office/sheet/EmployeeFields.h"
#include "office/sheet/SheetFile.h"
#include "office/sheet/SheetPeople.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ptk {

using EmployeeValues = std::array<Value, kEmployeeFieldCount>; // by EmployeeField

// A field that a known employee and the file have differently. The texts are as the employee records print them.
struct EmployeeDifference
{
    std::int32_t employee = 0; // EmployeeID
    std::int32_t number = 0;
    std::string name; // as stored
    EmployeeField field = EmployeeField::Number;
    std::string stored;
    std::string given;
    bool taken = false; // it is changed, or would be

    bool operator==(const EmployeeDifference&) const = default;
};

// Answers which differences are stored.
using TakesDifference = std::function<bool(const EmployeeDifference&)>;

struct EmployeeChange
{
    std::int32_t employee = 0; // EmployeeID
    std::vector<std::pair<EmployeeField, Value>> fields;
};

struct EmployeeLines
{
    std::int64_t lines = 0;                      // without the heading and blank ones
    std::int64_t there = 0;                      // lines of known employees who are not changed, and repeated lines
    std::vector<EmployeeValues> added;           // in the order of the file
    std::vector<EmployeeChange> changed;         // in the order of the file
    std::vector<EmployeeDifference> differences; // also those that are not stored
    std::vector<RefusedLine> refused;            // in the order of the file
    std::vector<std::string> leftAside;          // headings without a meaning here, at most fifty
};

// Reads and compares the lines; `text` is an answer of ReadSheet. Raises a failure without a number, one sentence, for a file that is
// refused as a whole, because a heading stands twice or the one for the employee number or one of `wanted` is missing; and what reading the
// database raises.
[[nodiscard]] EmployeeLines ReadEmployeeLines(std::string_view text, const PrepareStatement& prepare,
                                              const std::vector<EmployeeField>& wanted, const TakesDifference& takes,
                                              const GoesOn& goesOn = {});

} // namespace ptk
