// Imports employees from a CSV file, such as the employee records of another office: new ones are added, known ones compared. The whole
// file is taken or nothing of it.
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
    TakesDifference takes;             // which differences of known employees are stored; nullptr: none
};

// The result of an import. Every line of the file, except the heading and blank ones, is added, there already, refused or a change.
struct EmployeeAccount : EmployeeLines
{
    bool isStored = false;

    [[nodiscard]] bool IsRefused() const { return !refused.empty(); }
    [[nodiscard]] bool HasNews() const { return !added.empty() || !changed.empty(); }
};

// Imports in one step of the edit trail, if no line is refused. A known employee is one with the same employee number. A new one gets no
// password, no company and no automatic deduction. Raises, and then nothing was changed: what ReadSheet and ReadEmployeeLines raise, and
// the failures of opening, reading and writing the database.
[[nodiscard]] EmployeeAccount ImportEmployees(const std::shared_ptr<CJetDB>& database, const EmployeeOrder& order,
                                              const GoesOn& goesOn = {});

// The account's lines, without line ends: the sums, each refused line, the columns left aside, and, if wanted, each difference.
[[nodiscard]] std::vector<std::string> EmployeeAccountLines(const EmployeeAccount& account, bool withDifferences = true);

} // namespace ptk
