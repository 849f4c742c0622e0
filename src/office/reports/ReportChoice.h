// What a report is offered with and asked for: whose records and which days.
#pragma once

#include "model/PayPeriod.h"
#include "reports/ReportCatalog.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CEmployeeList;

// The days that the Reports page shows for a report when it is chosen; none for one without dates. periodLength: days added to the first,
// looked at for pay periods only. Raises Failure 6 when the last one leaves the calendar.
[[nodiscard]] std::optional<PayPeriod> OfferedDays(ReportDates dates, DateTime today, std::int16_t periodLength);

// Where the days that are offered for a pay period and those that were offered before them leave out or double a day: which, in one
// sentence; empty where each day is in just one of both. Raises as OfferedDays.
[[nodiscard]] std::string OfferedDaysNotice(DateTime today, std::int16_t periodLength);

// The offered days with those in their place that were chosen. A first day that was chosen takes the last one with it, unless that was
// chosen too; the year to date ends today. REQUIRES: a report with dates.
[[nodiscard]] PayPeriod ChosenDays(ReportDates dates, DateTime today, std::int16_t periodLength, std::optional<DateTime> from,
                                   std::optional<DateTime> to);

// Who is offered reports, by display name, in the list's order.
[[nodiscard]] std::vector<std::string> OfferedNames(CEmployeeList& employees);

// Whom of these a report takes, in the names' order. A name that nobody has leaves an empty entry, which the reports answer with their
// codes; a report of everyone leaves it out, and with it the administrators.
[[nodiscard]] std::shared_ptr<CEmployeeList> EmployeesFor(ReportWhom whom, CEmployeeList& employees, const std::vector<std::string>& names);

// What to ask before as many reports are made for which a window each opens: fifty are more than anybody reads one by one. Nothing for
// fewer, and for one report of all.
[[nodiscard]] std::optional<std::string> ManyWindowsQuestion(ReportWhom whom, std::size_t employees);

} // namespace ptk
