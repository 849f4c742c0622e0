#include "office/overview/OverviewTable.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ptk {

namespace {

struct Given
{
    const char* name;
    std::optional<CardFigures> figures;
    std::int32_t problems = 0;
    std::int32_t notices = 0;
    std::int64_t week = 0; // minutes
    bool clockedIn = false;
};

OverviewRow Row(const Given& given)
{
    EmployeeRow employee;
    employee.LastName = given.name;
    OverviewRow row;
    row.employee = std::make_shared<CEmployee>(employee);
    row.figures = given.figures;
    row.check.problems = given.problems;
    row.check.notices = given.notices;
    row.check.clockedIn = given.clockedIn;
    row.check.weeks.push_back({ToDateTime("3/1/2026"), given.week, 0});
    return row;
}

std::vector<OverviewRow> Rows()
{
    return {Row({"A", CardFigures{"9.00", "1.00", "90.00"}, 1, 2, 900, true}),
            Row({"B", CardFigures{"-0.50", "10.00", "0.00"}, 0, 3, 2400}), Row({"C", std::nullopt, 3, 0, 0}),
            Row({"D", CardFigures{"80.00", "0.00", "1000.50"}, 1, 0, 2460})};
}

std::string Sorted(OverviewColumn column)
{
    const std::vector<OverviewRow> rows = Rows();
    std::vector<std::size_t> order{0, 1, 2, 3};
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t left, std::size_t right) { return StandsBefore(rows, left, right, column); });
    std::string names;
    for (const std::size_t row : order) {
        names += rows.at(row).employee->DisplayName();
    }
    return names;
}

// In the order of a table that shows D, B, C and A, of whom B has no problems; by EmployeeID 4, 2, 3, 1.
TEST(OverviewTableTest, WalksFromOneWithProblemsToTheNext)
{
    struct Case
    {
        const char* name;
        std::optional<std::int32_t> from;
        int direction;
        std::optional<std::size_t> place;
    };
    std::vector<OverviewRow> rows = Rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EmployeeRow employee;
        employee.EmployeeID = static_cast<std::int32_t>(row) + 1;
        rows.at(row).employee = std::make_shared<CEmployee>(employee);
    }
    const std::vector<std::size_t> shown{3, 1, 2, 0};
    for (const Case& c : {Case{"over one without", 4, 1, 2},
                          {"and back", 3, -1, 0},
                          {"from one without", 2, 1, 2},
                          {"beyond the end", 1, 1, {}},
                          {"beyond the beginning", 4, -1, {}},
                          {"from nobody", {}, 1, 0},
                          {"back from one who is not shown", 99, -1, 3}}) {
        EXPECT_EQ(StepToProblems(rows, shown, c.from, c.direction), c.place) << c.name;
    }
    EXPECT_EQ(StepToProblems(rows, std::vector<std::size_t>{}, 1, 1), std::nullopt);
    EXPECT_EQ(ProblemShareText(17, 40) + "|" + ProblemShareText(1, 1) + "|" + ProblemShareText(0, 3),
              "17 of 40 have problems: F9|1 of 1 has problems: F9|");
}

TEST(OverviewTableTest, SortsByWhatACellMeans)
{
    EXPECT_EQ(Sorted(OverviewColumn::Name), "ABCD");
    EXPECT_EQ(Sorted(OverviewColumn::Regular), "CBAD") << "as numbers; who has none comes first";
    EXPECT_EQ(Sorted(OverviewColumn::Overtime), "CDAB");
    EXPECT_EQ(Sorted(OverviewColumn::Gross), "CBAD");
    EXPECT_EQ(Sorted(OverviewColumn::LongestWeek), "CABD");
    EXPECT_EQ(Sorted(OverviewColumn::Problems), "BDAC") << "of the same number of problems, the one with fewer notices";
    EXPECT_EQ(Sorted(OverviewColumn::Notices), "CDAB");
    EXPECT_EQ(Sorted(OverviewColumn::ClockedIn), "BCDA");
    EXPECT_EQ(Sorted(OverviewColumn::Changed), "ABCD");
    const std::vector<OverviewRow> rows = Rows();
    EXPECT_FALSE(StandsBefore(rows, 0, 0, OverviewColumn::Name));
    EXPECT_TRUE(StandsBefore(rows, 0, 1, OverviewColumn::Name));
    for (const auto column : {OverviewColumn::Regular, OverviewColumn::Gross, OverviewColumn::LongestWeek, OverviewColumn::Problems}) {
        EXPECT_FALSE(StandsBefore({rows[0], rows[0]}, 0, 1, column)) << "equals keep the order of the list";
    }
}

TEST(OverviewTableTest, SumsAndCopiesWhatIsShown)
{
    std::vector<OverviewRow> rows = Rows();
    EXPECT_EQ(TabSeparated({TotalCells(rows, false), TotalCells(rows, true)}), "Total (4)\t88.50\t11.00\t1090.50\t\t5\t5\t1\t0\t0\n"
                                                                               "Total (3 of 4)\t89.00\t1.00\t1090.50\t\t5\t2\t1\t0\t0\n");
    rows = {Row({"=A\tB\n", CardFigures{"-0.50", "0.00", "0.00"}, 0, 0, 0, true}), Row({"C", std::nullopt, 1})};
    rows[0].paid.emplace().paidAt = ToDateTime("3/14/2026 17:30");
    rows[0].check.changed = PaidDifference{"+0.00", "+0.00", "-9.25"};
    EXPECT_EQ(TabSeparated({OverviewHeading(), OverviewCellsOf(rows.at(0)), OverviewCellsOf(rows.at(1))}),
              "Name\tRegular\tOvertime\tGross Pay\tLongest Week\tProblems\tNotices\tClocked In\tPaid\tChanged\n"
              "'=A B \t-0.50\t0.00\t0.00\t0.00\t0\t0\tyes\t03/14/2026\t-9.25\n"
              "C\t\t\tnot readable\t0.00\t1\t0\t\t\t\n");
}

TEST(OverviewTableTest, SaysWhenItWasReadAndHowMuch)
{
    Overview overview;
    overview.made = ToDateTime("3/15/2026 8:05");
    EXPECT_EQ(OverviewNews(overview, 0), "Read 03/15/2026 08:05 AM: there are no employees to show.");
    overview.rows = Rows();
    EXPECT_EQ(OverviewNews(overview, 4), "Read 03/15/2026 08:05 AM: 3 of 4 employees have problems.");
    EXPECT_EQ(OverviewNews(overview, 9), "Stopped after 4 of 9 employees, read 03/15/2026 08:05 AM: 3 of them have problems.");
    overview.rows.erase(overview.rows.begin() + 1, overview.rows.end());
    EXPECT_EQ(OverviewNews(overview, 1), "Read 03/15/2026 08:05 AM: 1 of 1 employee has problems.");
}

TEST(OverviewTableTest, OpensWithAPeriodInWhichThereIsSomethingToPay)
{
    const DateTime today = ToDateTime("3/5/2026");
    const auto opened = [&](const std::optional<PayPeriod>& timecards) {
        const PayPeriod period = OverviewPeriod(timecards, today, 14);
        return ShortDateText(period.from) + " " + ShortDateText(period.to);
    };
    EXPECT_EQ(opened(std::nullopt), "3/1/2026 3/15/2026");
    EXPECT_EQ(opened(PayPeriod{today, ToDateTime("3/19/2026")}), "3/1/2026 3/15/2026") << "as the program starts";
    EXPECT_EQ(opened(PayPeriod{ToDateTime("2/3/2026"), ToDateTime("2/5/2026")}), "2/3/2026 2/5/2026");
    EXPECT_EQ(opened(PayPeriod{ToDateTime("2/5/2026"), ToDateTime("2/3/2026")}), "3/1/2026 3/15/2026");
}

} // namespace

} // namespace ptk
