#include "office/overview/OverviewTable.h"

#include "model/payday/ClosingReader.h"
#include "office/card/CardTexts.h"
#include "platform/Succeeds.h"
#include "platform/text/DataText.h"
#include "platform/text/DayText.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <fmt/format.h>
#include <tuple>

namespace ptk {

namespace {

constexpr auto kNotReadable = "not readable";
constexpr auto kYes = "yes";
constexpr auto kOneLeftOut = "{} with records in these days is in no list: {}";
constexpr auto kSeveralLeftOut = "{} with records in these days are in no list: {}";

// Makes one line of a name, whatever the database holds.
std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return text;
}

std::optional<double> Figure(const OverviewRow& row, std::string CardFigures::*figure)
{
    return row.figures ? std::optional(ToDouble((*row.figures).*figure)) : std::nullopt;
}

// The moment of the closing: none if nothing was paid, the zero date-time if the moment is not known.
std::optional<DateTime> PaidAt(const OverviewRow& row)
{
    return row.paid ? std::optional(row.paid->paidAt.value_or(DateTime())) : std::nullopt;
}

std::string PaidText(const OverviewRow& row)
{
    if (!row.paid) {
        return "";
    }
    return row.paid->paidAt ? DayText(*row.paid->paidAt) : kYes;
}

std::string ChangedText(const OverviewRow& row)
{
    return row.check.changed ? row.check.changed->gross.value_or(kNotReadable) : "";
}

std::optional<double> Owed(const OverviewRow& row)
{
    return row.check.changed ? std::optional(ToDouble(row.check.changed->gross.value_or("0"))) : std::nullopt;
}

bool HasProblems(const OverviewRow& row)
{
    return row.check.problems > 0;
}

std::int64_t ProblemCount(const std::vector<OverviewRow>& rows)
{
    return std::count_if(rows.begin(), rows.end(), HasProblems);
}

} // namespace

OverviewCells OverviewHeading()
{
    return {"Name", "Regular", "Overtime", "Gross Pay", "Longest Week", "Problems", "Notices", "Clocked In", "Paid", "Changed"};
}

OverviewCells OverviewCellsOf(const OverviewRow& row)
{
    const CardFigures figures = row.figures.value_or(CardFigures{"", "", kNotReadable});
    return {OneLine(row.employee->DisplayName()),
            figures.regular,
            figures.overtime,
            figures.gross,
            row.LongestWeek(),
            std::to_string(row.check.problems),
            std::to_string(row.check.notices),
            row.check.clockedIn ? kYes : "",
            PaidText(row),
            ChangedText(row)};
}

std::string LeftOutName(const LeftOut& out)
{
    const std::string unknown = out.id ? fmt::format("EmployeeID {}", *out.id) : "No EmployeeID";
    return fmt::format("{} ({})", out.row.employee != nullptr ? OneLine(out.row.employee->DisplayName()) : unknown,
                       LeftOutName(out.reason));
}

OverviewCells OverviewCellsOf(const LeftOut& out)
{
    OverviewCells cells;
    if (out.row.employee != nullptr) {
        cells = OverviewCellsOf(out.row);
    } else {
        cells.at(static_cast<std::size_t>(OverviewColumn::Gross)) = CountText(out.row.records, "record");
    }
    cells.front() = LeftOutName(out);
    return cells;
}

std::string LeftOutNews(std::span<const LeftOut> leftOut)
{
    std::string names;
    for (const LeftOut& out : leftOut) {
        names += (names.empty() ? "" : ", ") + LeftOutName(out);
    }
    const char* sentence = leftOut.size() == 1 ? kOneLeftOut : kSeveralLeftOut;
    return leftOut.empty() ? std::string() : fmt::format(fmt::runtime(sentence), leftOut.size(), names);
}

bool CanTakeIn(std::span<const LeftOut> leftOut)
{
    return std::any_of(leftOut.begin(), leftOut.end(), [](const LeftOut& out) { return out.reason != LeftOutReason::Unknown; });
}

OverviewCells TotalCells(const std::vector<OverviewRow>& rows, bool onlyProblems)
{
    const OverviewTotals totals = TotalsOf(rows, onlyProblems);
    const std::string shown = onlyProblems ? fmt::format("{} of ", ProblemCount(rows)) : std::string();
    return {fmt::format("Total ({}{})", shown, rows.size()),
            totals.figures.regular,
            totals.figures.overtime,
            totals.figures.gross,
            "",
            std::to_string(totals.problems),
            std::to_string(totals.notices),
            std::to_string(totals.clockedIn),
            std::to_string(totals.paid),
            std::to_string(totals.changed)};
}

bool StandsBefore(const std::vector<OverviewRow>& rows, std::size_t left, std::size_t right, OverviewColumn column)
{
    const OverviewRow& one = rows.at(left);
    const OverviewRow& other = rows.at(right);
    switch (column) {
    case OverviewColumn::Name:
        break;
    case OverviewColumn::Regular:
        return Figure(one, &CardFigures::regular) < Figure(other, &CardFigures::regular);
    case OverviewColumn::Overtime:
        return Figure(one, &CardFigures::overtime) < Figure(other, &CardFigures::overtime);
    case OverviewColumn::Gross:
        return Figure(one, &CardFigures::gross) < Figure(other, &CardFigures::gross);
    case OverviewColumn::LongestWeek:
        return one.check.LongestWeek() < other.check.LongestWeek();
    case OverviewColumn::Problems:
        return std::tie(one.check.problems, one.check.notices) < std::tie(other.check.problems, other.check.notices);
    case OverviewColumn::Notices:
        return one.check.notices < other.check.notices;
    case OverviewColumn::ClockedIn:
        return one.check.clockedIn < other.check.clockedIn;
    case OverviewColumn::Paid:
        return PaidAt(one) < PaidAt(other);
    case OverviewColumn::Changed:
        return Owed(one) < Owed(other);
    }
    return left < right;
}

std::optional<std::size_t> StepToProblems(const std::vector<OverviewRow>& rows, std::span<const std::size_t> shown,
                                          std::optional<std::int32_t> employeeID, int direction)
{
    const auto here = std::find_if(shown.begin(), shown.end(),
                                   [&](std::size_t row) { return employeeID && rows.at(row).employee->EmployeeID() == *employeeID; });
    const std::ptrdiff_t outside = direction > 0 ? -1 : std::ssize(shown);
    std::ptrdiff_t place = here == shown.end() ? outside : here - shown.begin();
    for (place += direction; place >= 0 && place < std::ssize(shown); place += direction) {
        if (HasProblems(rows.at(shown[static_cast<std::size_t>(place)]))) {
            return static_cast<std::size_t>(place);
        }
    }
    return std::nullopt;
}

std::string ProblemShareText(std::int64_t problems, std::int64_t chosen)
{
    return problems == 0 ? std::string() : fmt::format("{} of {} {} problems: F9", problems, chosen, problems == 1 ? "has" : "have");
}

std::string TabSeparated(const std::vector<OverviewCells>& lines)
{
    std::string text;
    for (const OverviewCells& cells : lines) {
        text += NoFormula(cells.front()); // no other cell can be taken for a formula
        for (std::size_t i = 1; i < cells.size(); ++i) {
            text += '\t' + cells.at(i);
        }
        text += '\n';
    }
    return text;
}

std::string OverviewNews(const Overview& overview, std::size_t offered)
{
    const std::size_t read = overview.rows.size();
    const std::int64_t problems = ProblemCount(overview.rows);
    const std::string made = MomentText(overview.made);
    const char* have = problems == 1 ? "has" : "have";
    if (offered == 0) {
        return fmt::format("Read {}: there are no employees to show.", made);
    }
    if (read < offered) {
        return fmt::format("Stopped after {} of {} employees, read {}: {} of them {} problems.", read, offered, made, problems, have);
    }
    return fmt::format("Read {}: {} of {} {} problems.", made, problems, CountText(static_cast<std::int64_t>(read), "employee"), have);
}

std::string ReadingText(std::size_t read, std::size_t offered)
{
    return fmt::format("Reading: {} of {} employees", read, offered);
}

PayPeriod OverviewPeriod(const std::optional<PayPeriod>& timecards, DateTime today, std::int16_t periodLength)
{
    if (timecards && timecards->from <= timecards->to && timecards->from != today) {
        return *timecards;
    }
    return DefaultPayPeriod(today, periodLength);
}

PayPeriod FirstPeriod(const std::shared_ptr<CJetDB>& database, const std::optional<PayPeriod>& timecards, DateTime today,
                      std::int16_t periodLength)
{
    std::optional<PayPeriod> next;
    Succeeds([&] { next = PeriodToClose(database); }); // the reading that follows tells of the failure
    return next ? *next : OverviewPeriod(timecards, today, periodLength);
}

} // namespace ptk
