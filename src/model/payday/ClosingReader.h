// Reads closings from the table _Payday. A row whose days cannot be read, are no whole days or run backward is ignored; files of earlier
// versions have no such table, and nothing is closed in them.
#pragma once

#include "model/payday/Closing.h"

#include <memory>

namespace ptk {

class CJetDB;
class Statement;

// Everything in this header raises the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.

// The closings that an overview or a card of this period needs, of everybody or of one employee, by one question. Its cost does not grow
// with the closings of earlier periods. The constructor already sends the question to a server; Answer waits for what it answers.
// REQUIRES: a CJetDB::Hold on the open database outlives it.
class ClosingsQuestion
{
public:
    ClosingsQuestion(CJetDB& database, const PayPeriod& period, std::optional<std::int64_t> employee);
    ~ClosingsQuestion();
    ClosingsQuestion(const ClosingsQuestion&) = delete;
    ClosingsQuestion& operator=(const ClosingsQuestion&) = delete;

    [[nodiscard]] Closings Answer();

private:
    PayPeriod m_period;
    std::unique_ptr<Statement> m_rows; // nullptr where the database has no such table
};

// Asks a ClosingsQuestion and waits for its answer.
[[nodiscard]] Closings ReadClosings(const std::shared_ptr<CJetDB>& database, const PayPeriod& period,
                                    std::optional<std::int64_t> employee = std::nullopt);

// All closings of one employee, of every period, ordered by first day and number.
[[nodiscard]] std::vector<Closing> ReadClosingsOf(const std::shared_ptr<CJetDB>& database, std::int64_t employee);

// The period to be closed next: it begins on the day after the last day that is closed for anybody, and has as many days as the period that
// ends there. Nothing where nothing is closed, or where it would leave the calendar.
[[nodiscard]] std::optional<PayPeriod> PeriodToClose(const std::shared_ptr<CJetDB>& database);

} // namespace ptk
