// The payday overview as a table: what its cells say, how its rows are ordered, and how they are copied.
#pragma once

#include "office/overview/Overview.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ptk {

enum class OverviewColumn
{
    Name,
    Regular,
    Overtime,
    Gross,
    LongestWeek,
    Problems,
    Notices,
    ClockedIn,
    Paid,
    Changed
};

inline constexpr std::size_t kOverviewColumns = 10;
using OverviewCells = std::array<std::string, kOverviewColumns>; // by OverviewColumn

[[nodiscard]] OverviewCells OverviewHeading();

// Without figures "not readable" stands in place of the gross pay. Paid is the day, changed the pay that is owed, or paid too much.
[[nodiscard]] OverviewCells CellsOf(const OverviewRow& row);

// Of somebody left out: "Peter Lindqvist (inactive)"; of an unknown one "EmployeeID 77 (unknown)", of records that name nobody at all
// "No EmployeeID (unknown)".
[[nodiscard]] std::string LeftOutName(const LeftOut& out);

// With that name, and of an unknown one the number of records in place of the figures.
[[nodiscard]] OverviewCells CellsOf(const LeftOut& out);

// "2 with records in these days are in no list: Peter Lindqvist (inactive), EmployeeID 77 (unknown)"; empty where there is nobody.
[[nodiscard]] std::string LeftOutNews(std::span<const LeftOut> leftOut);

// Whether there is anybody whom TakeInLeftOut would take in.
[[nodiscard]] bool CanTakeIn(std::span<const LeftOut> leftOut);

// Of the rows that are shown, all or those with problems alone, and how many they are: "Total (3 of 11)".
[[nodiscard]] OverviewCells TotalCells(const std::vector<OverviewRow>& rows, bool onlyProblems);

// Whether the row at `left` stands before the one at `right` in ascending order; by name in the order of all lists of employees, by
// problems also by notices. What cannot be read is less than any figure.
[[nodiscard]] bool StandsBefore(const std::vector<OverviewRow>& rows, std::size_t left, std::size_t right, OverviewColumn column);

// Of the places in `shown`, which holds positions of rows in the order of a table, the next one with problems behind (direction 1) or
// before
// (-1) the employee's; from the first or the last where nobody is named or he is not shown. Nothing beyond the ends.
[[nodiscard]] std::optional<std::size_t> StepToProblems(const std::vector<OverviewRow>& rows, std::span<const std::size_t> shown,
                                                        std::optional<std::int32_t> employeeID, int direction);

// "17 of 40 have problems: F9", said of those who were chosen for something; empty where nobody has any.
[[nodiscard]] std::string ProblemShareText(std::int64_t problems, std::int64_t chosen);

// Each line ends in LF; no cell holds a tab or a line end, and none is a formula to a spreadsheet.
[[nodiscard]] std::string TabSeparated(const std::vector<OverviewCells>& lines);

// "Read 03/05/2003 08:05 AM: 3 of 12 employees have problems." Where the reading was ended before, of how many were read.
[[nodiscard]] std::string OverviewNews(const Overview& overview, std::size_t offered);

// "Reading: 120 of 1000 employees".
[[nodiscard]] std::string ReadingText(std::size_t read, std::size_t offered);

// The period that the overview opens with where nothing was closed yet: the one of the Timecards page, where it holds one, unless that only
// begins today, as it does when the program starts; then the running pay period. Raises Failure 6 when that leaves the calendar.
[[nodiscard]] PayPeriod OverviewPeriod(const std::optional<PayPeriod>& timecards, DateTime today, std::int16_t periodLength);

// The one that is to be closed next; where nothing was closed yet, or that cannot be read, the one above. REQUIRES: not nullptr.
[[nodiscard]] PayPeriod FirstPeriod(const std::shared_ptr<CJetDB>& database, const std::optional<PayPeriod>& timecards, DateTime today,
                                    std::int16_t periodLength);

} // namespace ptk
