// The payday overview: whom one can pay for a period, whom not yet, and why.
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
    std::int32_t records = 0;                  // that have to do with the period
    std::vector<std::vector<Remedy>> remedies; // by finding of the check, where they are asked for

    // Hours; "0.00" without a week.
    [[nodiscard]] std::string LongestWeek() const;
};

// Why somebody with records in the period is in no list.
enum class LeftOutReason
{
    Inactive,
    Administrator,
    Unknown // records of an EmployeeID that no employee has
};

// "inactive", "administrator", "unknown".
[[nodiscard]] std::string_view NameOf(LeftOutReason reason);

struct LeftOut
{
    LeftOutReason reason = LeftOutReason::Unknown;
    std::optional<std::int64_t> id; // none of records that name nobody at all
    OverviewRow row;                // of an unknown one without an employee, figures and findings

    // Not paid, or not as the card is now.
    [[nodiscard]] bool IsOwed() const;
};

struct Overview
{
    PayPeriod period;
    DateTime made; // what the checks took for now
    CheckLimits limits;
    std::vector<OverviewRow> rows;
    std::vector<LeftOut> leftOut;               // in the order of the list, unknown ones behind it
    bool withRemedies = false;                  // to be computed as the rows are read
    std::optional<std::int64_t> autoShiftEnd{}; // for the remedies, see ShiftEnds
};

struct OverviewTotals
{
    CardFigures figures; // the sums of the shown texts, to the cent however large; where there is none it counts nothing
    std::int32_t clockedIn = 0;
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    std::int32_t paid = 0;    // employees
    std::int32_t changed = 0; // employees
};

using Employees = std::vector<std::shared_ptr<CEmployee>>;

// Who may have been left out and is still to be looked at.
struct LeftOutSearch
{
    Employees known;                                  // in the order of the list
    std::vector<std::optional<std::int64_t>> unknown; // EmployeeIDs; none for records that name nobody
    std::size_t done = 0;                             // of the known, then of the unknown

    [[nodiscard]] bool IsDone() const { return done == known.size() + unknown.size(); }
};

// Those with hours to show, in the list's order; namesakes each.
[[nodiscard]] Employees OfferedEmployees(CEmployeeList& employees);

// Called with each row as soon as it is read; false ends the reading.
using RowTaken = std::function<bool(const OverviewRow& row)>;

// Reads one row an employee behind those that the overview has, all of one moment: the database is held until it returns. False when
// `taken` ended it. Raises the failure of a database that cannot be opened or read. REQUIRES: database and employees are not nullptr; the
// overview's period, moment and limits are set.
bool ReadOverview(Overview& overview, const std::shared_ptr<CJetDB>& database, std::span<const std::shared_ptr<CEmployee>> employees,
                  const RowTaken& taken = {});

// Finds who may have records in the period and is none of `listed`, of all employees in their order. Raises the same, as the next two.
[[nodiscard]] LeftOutSearch FindLeftOut(const Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all,
                                        const Employees& listed);

// Looks at one after the other until `goOn` answers false, at least at one; who has records in the period is left out.
void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, LeftOutSearch& search, const std::function<bool()>& goOn);

// Both, of one moment.
void ReadLeftOut(Overview& overview, const std::shared_ptr<CJetDB>& database, CEmployeeList& all, const Employees& listed);

// Puts those who were left out, save the unknown, among the rows in the order of the list.
void TakeInLeftOut(Overview& overview, CEmployeeList& all);

// Of those with problems alone.
[[nodiscard]] OverviewTotals TotalsOf(std::span<const OverviewRow> rows, bool onlyProblems = false);

} // namespace ptk
