// The table of reports: which reports there are, what each is called, and which people and days it takes.
#pragma once

#include <memory>
#include <span>
#include <string_view>

namespace ptk {

class Report;
struct ReportContext;

// An owner of open reports tells them apart by their kind.
enum class ReportKind
{
    TimeCard,
    Review,
    YTDTotals,
    Employee,
    PhoneBook
};

enum class ReportWhom
{
    Each,     // a report for each of the chosen employees
    Together, // one report for all chosen employees
    Everyone, // one report for all listed employees but the administrators, chosen or not
};

enum class ReportDates
{
    PayPeriod,  // both dates are free; the running pay period is offered
    YearToDate, // from 1 January on; the end is free
    None,
};

struct ReportEntry
{
    ReportKind kind;
    std::string_view caption;     // its name in the report list
    std::string_view consoleName; // its name for ptk-console
    std::string_view title;       // the title, or its first part
    std::string_view fileName;    // {number}: the employee's number, {days}: the period's code
    std::string_view viewer;      // the name of its viewer's window
    ReportWhom whom;
    ReportDates dates;
    bool tellsFailures; // whether a box tells failures; deliberately not for the two lists
    std::shared_ptr<Report> (*make)(ReportContext context);
};

// In the order of the report list.
[[nodiscard]] std::span<const ReportEntry> ReportCatalog();

// The entry with exactly this name, by caption or by console name; nullptr when there is none.
[[nodiscard]] const ReportEntry* FindReport(std::string_view caption);
[[nodiscard]] const ReportEntry* FindConsoleReport(std::string_view consoleName);

[[nodiscard]] const ReportEntry& EntryOf(ReportKind kind);

} // namespace ptk
