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
    return fmt::format("Only what counts for {} - {}", day(scope.period.from), day(scope.period.to));
}

void Narrow(TrailQuery& query, const HistoryScope& scope)
{
    if (scope.record) {
        query.employee.reset();
        query.records = std::vector{*scope.record};
    } else {
        query.employee = scope.employee;
        query.recordsIn = TrailDays{scope.period.from, scope.period.to};
    }
}

} // namespace ptk
