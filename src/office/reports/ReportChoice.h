// Which employees and which days a report is offered with and made for.
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

// The days that the Reports page shows when a report is chosen; none for a report without dates. periodLength: days added to the first one,
// used for pay periods only. Raises Failure 6 when the last day leaves the calendar.
[[nodiscard]] std::optional<PayPeriod> OfferedDays(ReportDates dates, DateTime today, std::int16_t periodLength);

// Says in one sentence which days the offered pay period and the one offered before it both hold, or which days between them neither holds;
// empty if every day is in exactly one of them. Raises as OfferedDays.
[[nodiscard]] std::string OfferedDaysNotice(DateTime today, std::int16_t periodLength);

// The offered days, with the chosen ones in their place. If only the first day is chosen, the last one moves with it, except that the year
// to date ends today. REQUIRES: a report with dates.
[[nodiscard]] PayPeriod ChosenDays(ReportDates dates, DateTime today, std::int16_t periodLength, std::optional<DateTime> from,
                                   std::optional<DateTime> to);

// The display names of those who are offered reports, in the list's order.
[[nodiscard]] std::vector<std::string> OfferedNames(CEmployeeList& employees);

// The employees that a report is made for, in the order of `names`. A name that nobody has leaves an empty entry, which the reports answer
// with their error numbers. A report of everyone has no empty entries and leaves out the administrators.
[[nodiscard]] std::shared_ptr<CEmployeeList> EmployeesFor(ReportWhom whom, CEmployeeList& employees, const std::vector<std::string>& names);

// The question before reports open fifty windows or more, because nobody reads so many one by one. Nothing for fewer windows, and for one
// report of all employees.
[[nodiscard]] std::optional<std::string> ManyWindowsQuestion(ReportWhom whom, std::size_t employees);

} // namespace ptk
