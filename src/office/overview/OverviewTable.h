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

// The cells of an employee's row. Without figures "not readable" takes the place of the gross pay. The cell of Paid is the day of the
// closing, that of Changed the pay that is owed, or below 0 the pay that was too much.
[[nodiscard]] OverviewCells OverviewCellsOf(const OverviewRow& row);

// The name of somebody left out: "Peter Lindqvist (inactive)"; of an unknown one "EmployeeID 77 (unknown)", and of records without an
// EmployeeID "No EmployeeID (unknown)".
[[nodiscard]] std::string LeftOutName(const LeftOut& out);

// The cells of somebody left out. The name is LeftOutName; for an unknown one the number of records takes the place of the gross pay, and
// no other figures are shown.
[[nodiscard]] OverviewCells OverviewCellsOf(const LeftOut& out);

// "2 with records in these days are in no list: Peter Lindqvist (inactive), EmployeeID 77 (unknown)"; empty where there is nobody.
[[nodiscard]] std::string LeftOutNews(std::span<const LeftOut> leftOut);

// Whether TakeInLeftOut would move anybody to the rows.
[[nodiscard]] bool CanTakeIn(std::span<const LeftOut> leftOut);

// The totals of the rows that are shown, which are all rows or those with problems only, and how many are shown: "Total (3 of 11)".
[[nodiscard]] OverviewCells TotalCells(const std::vector<OverviewRow>& rows, bool onlyProblems);

// Whether the row at `left` stands before the one at `right` in ascending order. Names stand in the order of all lists of employees; equal
// numbers of problems are ordered by notices. What cannot be read is less than any figure.
[[nodiscard]] bool StandsBefore(const std::vector<OverviewRow>& rows, std::size_t left, std::size_t right, OverviewColumn column);

// The place in `shown` of the next row with problems behind (direction 1) or before (-1) the employee's row; if that is not shown, from the
// first or the last place on. `shown` holds indexes of rows in the order of a table. Nothing beyond the ends.
[[nodiscard]] std::optional<std::size_t> StepToProblems(const std::vector<OverviewRow>& rows, std::span<const std::size_t> shown,
                                                        std::optional<std::int32_t> employeeID, int direction);

// "17 of 40 have problems: F9", about people who were chosen for something; empty if nobody has problems.
[[nodiscard]] std::string ProblemShareText(std::int64_t problems, std::int64_t chosen);

// The lines, to copy into a spreadsheet. Each ends in LF; no cell holds a tab or a line end, and none is taken for a formula.
[[nodiscard]] std::string TabSeparated(const std::vector<OverviewCells>& lines);

// "Read 03/05/2003 08:05 AM: 3 of 12 employees have problems." If the reading was stopped early, it says how many were read.
[[nodiscard]] std::string OverviewNews(const Overview& overview, std::size_t offered);

// "Reading: 120 of 1000 employees".
[[nodiscard]] std::string ReadingText(std::size_t read, std::size_t offered);

// The period that the overview opens with if nothing was closed yet: the one of the Timecards page, unless it begins today, as it does when
// the program starts, or the page has none; then the running pay period. Raises Failure 6 when that leaves the calendar.
[[nodiscard]] PayPeriod OverviewPeriod(const std::optional<PayPeriod>& timecards, DateTime today, std::int16_t periodLength);

// The period that the overview opens with: the one to be closed next. If nothing was closed yet, or that cannot be read, what
// OverviewPeriod answers. REQUIRES: the database is not nullptr.
[[nodiscard]] PayPeriod FirstPeriod(const std::shared_ptr<CJetDB>& database, const std::optional<PayPeriod>& timecards, DateTime today,
                                    std::int16_t periodLength);

} // namespace ptk
