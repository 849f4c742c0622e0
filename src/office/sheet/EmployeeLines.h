// The lines of a file of employees, compared with the employees that there are.
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

// A field of a known employee that the file has otherwise. Texts are as the employee records print them.
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

// Which differences are taken.
using TakesDifference = std::function<bool(const EmployeeDifference&)>;

struct EmployeeChange
{
    std::int32_t employee = 0; // EmployeeID
    std::vector<std::pair<EmployeeField, Value>> fields;
};

struct EmployeeLines
{
    std::int64_t lines = 0;                      // without the heading and blank ones
    std::int64_t there = 0;                      // known, and nothing of them is changed; or the same line again
    std::vector<EmployeeValues> added;           // in the order of the file
    std::vector<EmployeeChange> changed;         // in the order of the file
    std::vector<EmployeeDifference> differences; // also those that are left
    std::vector<RefusedLine> refused;            // in the order of the file
    std::vector<std::string> leftAside;          // headings that mean nothing here, the first of them
};

// `text` as ReadSheet answers it. Raises a failure without a number for a file that is refused as a whole, one sentence: a heading that
// stands twice, none for the employee number, none for one of `wanted`; and what reading the database raises.
[[nodiscard]] EmployeeLines ReadEmployeeLines(std::string_view text, const PrepareStatement& prepare,
                                              const std::vector<EmployeeField>& wanted, const TakesDifference& takes,
                                              const GoesOn& goesOn = {});

} // namespace ptk
