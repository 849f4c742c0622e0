// Which part of the history a time card asks for: that of one record, or of everything that its total depends on.
#pragma once

#include "model/PayPeriod.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ptk {

struct TrailQuery;

struct HistoryScope
{
    std::int64_t employee = 0;
    PayPeriod period;
    std::optional<std::int64_t> record;      // nothing: every record that lies or ever lay in the period, and the employee's own row
    DateTime start;                          // of the record
    bool narrows = true;                     // false: the employee's whole history is asked for, and this offered beside it
    std::optional<std::int64_t> paidAfter{}; // the Entry of the period's closing: only later changes
};

// "Only the record of 03/05/2003 08:00 AM", "Only what counts for 03/01/2003 - 03/15/2003", "Only what was
// changed since 03/01/2003 - 03/15/2003 was paid".
[[nodiscard]] std::string ScopeText(const HistoryScope& scope);

// Restricts the query to the scope. A single record is found even in entries from when it belonged to another employee.
void Narrow(TrailQuery& query, const HistoryScope& scope);

} // namespace ptk
