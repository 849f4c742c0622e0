// Reads an overview a little at a time, for whoever has to do other things in between.
#pragma once

#include "office/overview/Overview.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

namespace ptk {

// The database is held within ReadOn alone: between two calls other programs, and this one, get at it. Every row is of one moment, the
// whole need not be.
class OverviewReading
{
public:
    // now: what the checks take for it. all: of these it reads behind the rows who was left out; nullptr for nobody. REQUIRES: the database
    // and the employees are not nullptr.
    OverviewReading(std::shared_ptr<CJetDB> database, Employees employees, const PayPeriod& period, DateTime now,
                    std::shared_ptr<CEmployeeList> all = nullptr);

    // Reads one employee after the other until `goOn` answers false, at least one; of a server portions of people, each by one question.
    // The first call reads the limits of the check, too. Raises the failure of a database that cannot be opened or read; the rows that were
    // read before stay.
    void ReadOn(const std::function<bool()>& goOn);

    [[nodiscard]] bool IsDone() const;

    // Puts those who were left out, save the unknown, among the rows: see TakeInLeftOut. REQUIRES: it is done and has `all`.
    void TakeIn();

    // As far as it has been read.
    [[nodiscard]] const Overview& Result() const { return m_overview; }

    [[nodiscard]] std::size_t Offered() const { return m_offered; }

private:
    [[nodiscard]] bool EndsPortion(std::size_t read) const;
    void ReadRows(const std::function<bool()>& goOn);
    void ReadLeftOut(const std::function<bool()>& goOn);

    std::shared_ptr<CJetDB> m_database;
    Employees m_employees;
    std::shared_ptr<CEmployeeList> m_all;
    std::size_t m_offered; // those, and who was taken in
    Overview m_overview;
    std::optional<LeftOutSearch> m_leftOut; // none before all rows are read
    bool m_hasLimits = false;
};

} // namespace ptk
