#include "office/reports/ReportChoice.h"

#include "model/CEmployee.h"
#include "model/CEmployeeList.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(ReportChoiceTest, TakesTheDaysThatWereChosenAndOffersTheOthers)
{
    struct Case
    {
        const char* name;
        ReportDates dates;
        std::optional<DateTime> from;
        std::optional<DateTime> to;
        PayPeriod days;
    };
    const DateTime today({2003, 3, 20}, {9, 30, 0});
    const auto march = [](int day) { return DateTime({2003, 3, day}); };
    for (const Case& c : {Case{"a period as offered", ReportDates::PayPeriod, {}, {}, {march(15), march(22)}},
                          Case{"the end goes with the start", ReportDates::PayPeriod, march(2), {}, {march(2), march(9)}},
                          Case{"both chosen", ReportDates::PayPeriod, march(2), march(3), {march(2), march(3)}},
                          Case{"the end alone", ReportDates::PayPeriod, {}, march(31), {march(15), march(31)}},
                          Case{"the year as offered", ReportDates::YearToDate, {}, {}, {DateTime({2003, 1, 1}), march(20)}},
                          Case{"the year ends today", ReportDates::YearToDate, march(2), {}, {march(2), march(20)}},
                          Case{"the year ends sooner", ReportDates::YearToDate, march(2), march(3), {march(2), march(3)}}}) {
        const PayPeriod days = ChosenDays(c.dates, today, 7, c.from, c.to);
        EXPECT_EQ(days.from, c.days.from) << c.name;
        EXPECT_EQ(days.to, c.days.to) << c.name;
    }
    EXPECT_FALSE(OfferedDays(ReportDates::None, today, 7).has_value());
}

// Fifteen days from the 1st and from the 15th; a period of sixteen in the last case, of ten in the one before.
TEST(ReportChoiceTest, SaysWhichDaysTheOfferedPeriodsLeaveOutOrDouble)
{
    struct Case
    {
        DateTime today;
        std::int16_t length;
        const char* notice;
    };
    for (const Case& c :
         {Case{DateTime({2026, 3, 20}), 14, "03/15/2026 is in the period before, too: 03/01/2026 - 03/15/2026."},
          {DateTime({2026, 4, 2}), 14, "03/30/2026 - 03/31/2026 are in no period: the one before is 03/15/2026 - 03/29/2026."},
          {DateTime({2026, 3, 15}), 14, "03/01/2026 is in the period before, too: 02/15/2026 - 03/01/2026."},
          {DateTime({2024, 3, 1}), 14, ""},
          {DateTime({2026, 5, 1}), 14, "04/30/2026 is in no period: the one before is 04/15/2026 - 04/29/2026."},
          {DateTime({2026, 3, 16}), 13, ""},
          {DateTime({2026, 3, 16}), 9, "03/11/2026 - 03/14/2026 are in no period: the one before is 03/01/2026 - 03/10/2026."},
          {DateTime({2026, 3, 16}), 15, "03/15/2026 - 03/16/2026 are in the period before, too: 03/01/2026 - 03/16/2026."}}) {
        EXPECT_EQ(OfferedDaysNotice(c.today, c.length), c.notice) << c.length;
    }
}

TEST(ReportChoiceTest, LooksEmployeesUpByDisplayName)
{
    struct Case
    {
        const char* firstName;
        const char* lastName;
        bool active;
    };
    CEmployeeList all;
    EmployeeRow row;
    for (const Case& c : {Case{"Ann", "Lee", true}, Case{"", "Zorn", true}, Case{"Ann", "Lee", true}, Case{"", "Administrator", true},
                          Case{"Admin", "ISTRATORs", true}, Case{"Al", "Late", false}, Case{"Bo", "Ray", true}}) {
        row.FirstName = c.firstName;
        row.LastName = c.lastName;
        row.EmployeeActive = c.active;
        row.EmployeeID = all.Count() + 1;
        all.Insert(std::make_shared<CEmployee>(row), all.Count() + 1);
    }
    EXPECT_EQ(OfferedNames(all), (std::vector<std::string>{"Ann Lee", "Zorn", "Ann Lee", "Admin ISTRATORs", "Bo Ray"}));

    const std::vector<std::string> names{"Zorn", "Ann Lee", "ann lee", "Administrator", "Ann Lee", "Admin ISTRATORs", "Al Late"};
    const auto ids = [&](ReportWhom whom) {
        const auto list = EmployeesFor(whom, all, names);
        std::vector<std::int32_t> taken;
        for (std::int32_t i = 1; i <= list->Count(); ++i) {
            taken.push_back(list->Item(i) == nullptr ? 0 : list->Item(i)->EmployeeID());
        }
        return taken;
    };
    EXPECT_EQ(ids(ReportWhom::Each), (std::vector<std::int32_t>{2, 1, 0, 4, 1, 5, 6}));
    EXPECT_EQ(ids(ReportWhom::Together), ids(ReportWhom::Each));
    EXPECT_EQ(ids(ReportWhom::Everyone), (std::vector<std::int32_t>{2, 1, 1, 6}));
}

TEST(ReportChoiceTest, AsksBeforeFiftyWindows)
{
    EXPECT_FALSE(ManyWindowsQuestion(ReportWhom::Each, 49));
    EXPECT_EQ(ManyWindowsQuestion(ReportWhom::Each, 50), "This opens 50 windows, one for each report. Go on?");
    EXPECT_FALSE(ManyWindowsQuestion(ReportWhom::Together, 1500));
    EXPECT_FALSE(ManyWindowsQuestion(ReportWhom::Everyone, 1500));
}

} // namespace

} // namespace ptk
