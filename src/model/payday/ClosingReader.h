// Reads what was closed, as it stands in the table _Payday. A row whose days cannot be read, are no whole days or run backward takes part
// in nothing; files of earlier versions have no such table, and nothing closed.
#pragma once

#include "model/payday/Closing.h"

#include <memory>

namespace ptk {

class CJetDB;
class Statement;

// All of these raise the failure of a database that cannot be opened or read. REQUIRES: database is not nullptr.

// What an overview or a card of this period needs to know, by one question, of everybody or of one employee. What it costs does not grow
// with the closings of earlier periods. The question is on its way from the first where its answer comes from afar. REQUIRES: a
// CJetDB::Hold on the open database outlives it.
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
    std::unique_ptr<Statement> m_rows; // nullptr where nothing can be closed
};

// What was closed, as ClosingsQuestion asks it, waited for at once.
[[nodiscard]] Closings ReadClosings(const std::shared_ptr<CJetDB>& database, const PayPeriod& period,
                                    std::optional<std::int64_t> employee = std::nullopt);

// All of one employee, of whatever period, by their first days and numbers.
[[nodiscard]] std::vector<Closing> ReadClosingsOf(const std::shared_ptr<CJetDB>& database, std::int64_t employee);

// The period that follows what was closed last, of whomever: it begins on the day after the greatest last day and has as many days. Nothing
// where nothing is closed, or where it would leave the calendar.
[[nodiscard]] std::optional<PayPeriod> PeriodToClose(const std::shared_ptr<CJetDB>& database);

} // namespace ptk
