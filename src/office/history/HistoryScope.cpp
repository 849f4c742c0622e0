#include "office/history/HistoryScope.h"

#include "platform/text/Text.h"
#include "store/trail/TrailReader.h"

#include <fmt/format.h>

namespace ptk {

std::string ScopeText(const HistoryScope& scope)
{
    if (scope.record) {
        return "Only the record of " + FormatDateTime(scope.start, "mm/dd/yyyy hh:mm AM/PM");
    }
    const auto day = [](DateTime date) { return FormatDateTime(date, "mm/dd/yyyy"); };
    const std::string days = day(scope.period.from) + " - " + day(scope.period.to);
    return scope.paidAfter ? fmt::format("Only what was changed since {} was paid", days) : "Only what counts for " + days;
}

void Narrow(TrailQuery& query, const HistoryScope& scope)
{
    if (scope.record) {
        query.employee.reset();
        query.records = std::vector{*scope.record};
    } else {
        query.employee = scope.employee;
        query.recordsIn = TrailDays{scope.period.from, scope.period.to};
        query.newerThan = scope.paidAfter.value_or(0);
    }
}

} // namespace ptk
