// The choice of reports: which there are, whom and which days each takes, and the dates it is offered with.
#pragma once

#include "platform/DateTime.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

class CEmployee;
class CEmployeeList;

enum class ReportKind
{
    TimeCard,
    Review,
    YTDTotals,
    Employee,
    PhoneBook
};

enum class ReportDates
{
    PayPeriod,  // both dates free, the running pay period offered
    YearToDate, // from 1 January on, the end free
    None,
};

struct ReportEntry
{
    ReportKind kind;
    std::string_view name; // as the report list shows it
    bool needsEmployees;   // false: all that are listed
    bool onePerEmployee;   // false: one report for all of them
    ReportDates dates;
};

// In the order of the report list.
const std::array<ReportEntry, 5>& ReportCatalog();
const ReportEntry* FindReport(std::string_view name); // nullptr when there is none of exactly this name

struct ReportPeriod
{
    DateTime from;
    DateTime to;
};

// periodLength: days added to the first day. Raise Failure 6 when the end leaves the calendar.
DateTime PeriodEnd(DateTime from, std::int16_t periodLength);
ReportPeriod DefaultPayPeriod(DateTime today, std::int16_t periodLength); // from the 1st until the 15th, from the 15th after it
ReportPeriod YearToDate(DateTime today);

// The employees of these display names, in the names' order; a name that nobody has leaves an empty entry, which the reports answer with
// their codes.
std::shared_ptr<CEmployeeList> EmployeesByName(CEmployeeList& employees, const std::vector<std::string>& names);

// The same without administrators and without names that nobody has.
std::shared_ptr<CEmployeeList> PhoneBookEmployees(CEmployeeList& employees, const std::vector<std::string>& names);

} // namespace ptk
