// Employees from a CSV file, such as the employee records of another office: new ones are added, known ones compared; all of the file or
// nothing.
#pragma once

#include "office/sheet/EmployeeLines.h"

#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

struct EmployeeOrder
{
    std::string file;                  // a path in the platform's own form
    bool trial = false;                // nothing is written
    std::vector<EmployeeField> wanted; // fields that the file must have
    TakesDifference takes;             // of what is known and differs, what is changed; nullptr: nothing
};

// Every line of the file, the heading and blank ones aside, is added, there already, refused or a change.
struct EmployeeAccount : EmployeeLines
{
    bool isStored = false;

    [[nodiscard]] bool IsRefused() const { return !refused.empty(); }
    [[nodiscard]] bool HasNews() const { return !added.empty() || !changed.empty(); }
};

// Stores in one step of the edit trail, once no line is refused. Somebody is known by the employee number. Who is added has no password, no
// company and no automatic deduction. Raises, and nothing was changed: what ReadSheet and ReadEmployeeLines raise, and the failures of
// opening, reading and writing the database.
[[nodiscard]] EmployeeAccount ImportEmployees(const std::shared_ptr<CJetDB>& database, const EmployeeOrder& order,
                                              const GoesOn& goesOn = {});

// One line each, without line ends: the sums, each refused line, what is left aside, and, where wanted, each difference.
[[nodiscard]] std::vector<std::string> EmployeeAccountLines(const EmployeeAccount& account, bool withDifferences = true);

} // namespace ptk
