// The table of reports: which there are, how each is called, and whom and which days it takes.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace ptk {

class Report;
struct ReportContext;

// By its kind an owner keeps a report and lets go of it.
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
    Each,     // of those chosen: a report for each
    Together, // of those chosen: one report for all
    Everyone, // one report for all who are listed, chosen or not, but for the administrators
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
    std::string_view caption;     // in the report list
    std::string_view consoleName; // for ptk-console
    std::string_view title;       // or what the title starts with
    std::string_view fileName;    // {number} stands for the employee's, {days} for the period's code
    std::string_view viewer;      // the name of its viewer's window
    ReportWhom whom;
    ReportDates dates;
    bool tellsFailures; // in a box; deliberately not of the two lists
    std::shared_ptr<Report> (*make)(ReportContext context);
};

std::span<const ReportEntry> ReportCatalog(); // in the order of the report list

// The entry with exactly this name; nullptr when there is none.
const ReportEntry* FindReport(std::string_view caption);
const ReportEntry* FindConsoleReport(std::string_view consoleName);

const ReportEntry& EntryOf(ReportKind kind);

} // namespace ptk
