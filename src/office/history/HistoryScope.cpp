#include "office/history/HistoryScope.h"

#include "platform/text/DayText.h"
#include "store/trail/TrailReader.h"

#include <fmt/format.h>

namespace ptk {

std::string ScopeText(const HistoryScope& scope)
{
    if (scope.record) {
        return "Only the record of " + MomentText(scope.start);
    }
    const std::string days = DayText(scope.period.from) + " - " + DayText(scope.period.to);
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
