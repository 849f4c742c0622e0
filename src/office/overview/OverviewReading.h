// Reads an overview a little at a time, so that the caller can do other things in between.
#pragma once

#include "office/overview/Overview.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace ptk {

// Reads the rows of an overview, then who was left out. The database is held only within ReadOn, so that other programs, and this one, can
// use it between two calls. Each row is of one moment; the whole overview may not be.
class OverviewReading
{
public:
    // now: the moment that the checks take for now. all: the employees among whom it looks for those who were left out, after the rows;
    // nullptr: it does not look. REQUIRES: the database and the employees are not nullptr.
    OverviewReading(std::shared_ptr<CJetDB> database, Employees employees, const PayPeriod& period, DateTime now,
                    std::shared_ptr<CEmployeeList> all = nullptr);

    // Reads one employee after the other, at least one, until `goOn` answers false. On a server `goOn` is asked after each portion of
    // people, which is read by one question. The first call also reads the limits of the check. Raises the failure of a database that
    // cannot be opened or read; the rows that were read before stay.
    void ReadOn(const std::function<bool()>& goOn);

    [[nodiscard]] bool IsDone() const;

    // Moves those who were left out, except the unknown ones, to the rows: see TakeInLeftOut. REQUIRES: the reading is done and has `all`.
    void TakeIn();

    // The overview as far as it has been read.
    [[nodiscard]] const Overview& Result() const { return m_overview; }

    [[nodiscard]] std::size_t Offered() const { return m_offered; }

private:
    [[nodiscard]] bool EndsPortion(std::size_t read) const;
    void ReadRows(const std::function<bool()>& goOn);
    void ReadLeftOut(const std::function<bool()>& goOn);

    std::shared_ptr<CJetDB> m_database;
    Employees m_employees;
    std::shared_ptr<CEmployeeList> m_all;
    std::size_t m_offered; // the employees, and those who were taken in
    Overview m_overview;
    std::optional<LeftOutSearch> m_leftOut; // empty until all rows are read
    bool m_hasLimits = false;
};

} // namespace ptk
