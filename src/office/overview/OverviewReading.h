// Reads an overview a little at a time, for whoever has to do other things in between.
#pragma once

#include "office/overview/Overview.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace ptk {

// The database is held within ReadOn alone: between two calls other programs, and this one, get at it. Every row is of one moment, the
// whole need not be.
class OverviewReading
{
public:
    // now: what the checks take for it. REQUIRES: the database and the employees are not nullptr.
    OverviewReading(std::shared_ptr<CJetDB> database, Employees employees, const PayPeriod& period, DateTime now);

    // Reads one employee after the other until `goOn` answers false, at least one; of a server portions of people, each by one question.
    // The first call reads the limits of the check, too. Raises the failure of a database that cannot be opened or read; the rows that were
    // read before stay.
    void ReadOn(const std::function<bool()>& goOn);

    [[nodiscard]] bool IsDone() const { return m_overview.rows.size() == m_employees.size(); }

    // As far as it has been read.
    [[nodiscard]] const Overview& Result() const { return m_overview; }

    [[nodiscard]] std::size_t Offered() const { return m_employees.size(); }

private:
    [[nodiscard]] bool EndsPortion(std::size_t read) const;

    std::shared_ptr<CJetDB> m_database;
    Employees m_employees;
    Overview m_overview;
    bool m_hasLimits = false;
};

} // namespace ptk
