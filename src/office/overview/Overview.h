// The payday overview: whom one can pay for a period, whom not yet, and why.
#pragma once

#include "model/CEmployee.h"
#include "model/check/CardCheck.h"
#include "model/check/CardFigures.h"
#include "model/PayPeriod.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ptk {

class CEmployeeList;
class CJetDB;

struct OverviewRow
{
    std::shared_ptr<const CEmployee> employee;
    std::optional<CardFigures> figures; // none where the card cannot be computed: a row of it cannot be read, or there are more than 32,767
    CardCheck check;

    // Hours; "0.00" without a week.
    [[nodiscard]] std::string LongestWeek() const;
};

struct Overview
{
    PayPeriod period;
    DateTime made; // what the checks took for now
    CheckLimits limits;
    std::vector<OverviewRow> rows;
};

struct OverviewTotals
{
    CardFigures figures; // the sums of the shown texts, to the cent however large; where there is none it counts nothing
    std::int32_t clockedIn = 0;
    std::int32_t problems = 0;
    std::int32_t notices = 0;
};

using Employees = std::vector<std::shared_ptr<CEmployee>>;

// Those with hours to show, in the list's order; namesakes each.
[[nodiscard]] Employees OfferedEmployees(CEmployeeList& employees);

// Called with each row as soon as it is read; false ends the reading.
using RowTaken = std::function<bool(const OverviewRow& row)>;

// Reads one row an employee behind those that the overview has, all of one moment: the database is held until it returns. False when
// `taken` ended it. Raises the failure of a database that cannot be opened or read. REQUIRES: database and employees are not nullptr; the
// overview's period, moment and limits are set.
bool ReadOverview(Overview& overview, const std::shared_ptr<CJetDB>& database, std::span<const std::shared_ptr<CEmployee>> employees,
                  const RowTaken& taken = {});

// Of those with problems alone.
[[nodiscard]] OverviewTotals TotalsOf(std::span<const OverviewRow> rows, bool onlyProblems = false);

} // namespace ptk
