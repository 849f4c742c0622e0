// The payday overview: who can be paid for a period, who cannot be paid yet, and why.
#pragma once

#include "model/CEmployee.h"
#include "model/check/CardCheck.h"
#include "model/check/CardFigures.h"
#include "model/payday/Closing.h"
#include "model/PayPeriod.h"
#include "model/remedy/Remedy.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

class CEmployeeList;
class CJetDB;

struct OverviewRow
{
    std::shared_ptr<const CEmployee> employee;
    std::optional<CardFigures> figures; // none where the card cannot be computed: a row of it cannot be read, or there are more than 32,767
    CardCheck check;
    std::optional<Closing> paid;               // what was paid for exactly this period
    std::int32_t records = 0;                  // number of records that belong to the period
    std::vector<std::vector<Remedy>> remedies; // of each finding of the check; empty unless the overview is `withRemedies`

    // The hours of the longest work week; "0.00" without one.
    [[nodiscard]] std::string LongestWeek() const;
};

// Why somebody with records in the period is not in the list.
enum class LeftOutReason
{
    Inactive,
    Administrator,
    Unknown // records of an EmployeeID that no employee has
};

// "inactive", "administrator", "unknown".
[[nodiscard]] std::string_view LeftOutName(LeftOutReason reason);

struct LeftOut
{
    LeftOutReason reason = LeftOutReason::Unknown;
    std::optional<std::int64_t> id; // none for records without an EmployeeID
    OverviewRow row;                // of an unknown one only the number of records is set

    // Whether pay is still owed: the period was not paid, or the card has changed since.
    [[nodiscard]] bool IsOwed() const;
};

struct Overview
{
    PayPeriod period;
    DateTime made; // the moment that the checks take for now
    CheckLimits limits;
    std::vector<OverviewRow> rows;
    std::vector<LeftOut> leftOut;               // in the order of the list, unknown ones behind it
    bool withRemedies = false;                  // whether remedies are computed while the rows are read
    std::optional<std::int64_t> autoShiftEnd{}; // for the remedies, see ShiftEnds
};

struct OverviewTotals
{
    CardFigures figures; // sums of the shown texts, to the cent however large; rows without figures count nothing
    std::int32_t clockedIn = 0;
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    std::int32_t paid = 0;    // number of employees
    std::int32_t changed = 0; // number of employees
};

using Employees = std::vector<std::shared_ptr<CEmployee>>;

// The people who may have been left out, and how many of them were looked at.
struct LeftOutSearch
{
    Employees known;                                  // in the order of the list
    std::vector<std::optional<std::int64_t>> unknown; // EmployeeIDs that no employee has; none for records without one
    std::size_t done = 0;                             // how many were looked at; the known come first

    [[nodiscard]] bool IsDone() const { return done == known.size() + unknown.size(); }
};

// The employees with hours to show, in the list's order; of people with the same name, each.
[[nodiscard]] Employees OfferedEmployees(CEmployeeList& employees);

// Called with each row as soon as it is read; false ends the reading.
using RowTaken = std::function<bool(const OverviewRow& row)>;

// Reads a row for each employee and appends it to the overview's rows. All are of one moment: the database is held until the function
// returns. False if `taken` ended the reading. Raises the failure of a database that cannot be opened or read. REQUIRES: database and
// employees are not nullptr; the overview's period, moment and limits are set.
bool ReadOverview(Overview& overview, const std::shared_ptr<CJetDB>& database, std::span<const std::shared_ptr<CEmployee>> employees,
                  const RowTaken& taken = {});

// Finds who may have records in the period and is not among `listed`: of all employees, in their order, and of the EmployeeIDs that no
// employee has. This and ReadLeftOut raise the failure of a database that cannot be opened or read.
[[nodiscard]] LeftOutSearch FindLeftOut(const Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all,
                                        const Employees& listed);

// Looks at one person after the other, at least one, until `goOn` answers false, and adds those with records in the period to `leftOut`.
void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, LeftOutSearch& search, const std::function<bool()>& goOn);

// Does the work of FindLeftOut and of ReadLeftOut for everybody, at one moment.
void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all, const Employees& listed);

// Moves those who were left out, except the unknown ones, to the rows, in the order of the list.
void TakeInLeftOut(Overview& overview, CEmployeeList& all);

// The totals of all rows, or only of those with problems.
[[nodiscard]] OverviewTotals TotalsOf(std::span<const OverviewRow> rows, bool onlyProblems = false);

} // namespace ptk
