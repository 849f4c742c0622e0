// Every kind of finding at its limits, for a period of two weeks from Sunday 3/1 to Saturday 3/14/2026, checked on Sunday 3/15 at noon.
#include "model/check/CardCheck.h"

#include "model/CEmployee.h"
#include "platform/text/Text.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

struct Shift
{
    const char* start; // "" cannot be read, "-" is not set
    const char* end;
};

std::optional<DateTime> Time(const std::string& text)
{
    return text == "-" ? DateTime() : ParseDateTime(text);
}

const DateTime kFrom = ToDateTime("3/1/2026");
const DateTime kTo = ToDateTime("3/14/2026");

// Numbered from 1; a row that the card's fetch takes starts in the period, or later and open, and does not end after it.
Punches Rows(const std::vector<Shift>& shifts)
{
    Punches punches;
    for (const Shift& shift : shifts) {
        Punch punch{static_cast<std::int32_t>(punches.size() + 1), Time(shift.start), Time(shift.end), false, "soon", "later"};
        punch.fetched = punch.IsReadable() && *punch.start >= kFrom && *punch.end <= kTo.AddDays(1);
        punches.push_back(punch);
    }
    return punches;
}

CEmployee Worker(std::int16_t lunch = 0)
{
    CEmployee employee;
    employee.PayRate(10);
    employee.OvertimePayRate(15);
    employee.AutoDeduct(lunch != 0);
    employee.AutoDeductLunchLength(lunch);
    return employee;
}

CardCheck Check(const CEmployee& employee, const Punches& punches, const CheckLimits& limits = {})
{
    return CheckCard({employee, kFrom, kTo}, punches, ToDateTime("3/15/2026 12:00"), limits);
}

// "open 1: 0; overlap 2,3: 60"
std::string Summary(const CardCheck& check)
{
    std::string text;
    for (const Finding& finding : check.findings) {
        text +=
            fmt::format("{}{} {}: {}", text.empty() ? "" : "; ", KindName(finding.kind), fmt::join(finding.records, ","), finding.minutes);
    }
    return text;
}

struct Case
{
    const char* name;
    std::vector<Shift> shifts;
    const char* findings;
};

TEST(CardCheckTest, SaysWhatIsWrongWithSingleShifts)
{
    for (const Case& c : {
             Case{"nothing", {{"3/2/2026 8:00", "3/2/2026 17:00"}}, ""},
             Case{"no end", {{"3/2/2026 8:00", "-"}}, "open 1: 0"},
             Case{"at work for less than 16 hours", {{"3/14/2026 20:00:01", "-"}}, "clocked-in 1: 0"},
             Case{"for 16 hours", {{"3/14/2026 20:00", "-"}}, "open 1: 0"},
             Case{"open after the period, at work", {{"3/15/2026 8:00", "-"}}, "open-later 1: 0"},
             Case{"open in the future", {{"3/15/2026 12:00:01", "-"}}, "open-later 1: 0; future 1: 0"},
             Case{"backward", {{"3/2/2026 17:00", "3/2/2026 8:00"}}, "backward 1: 0"},
             Case{"within one minute", {{"3/2/2026 8:00:00", "3/2/2026 8:00:59"}}, "empty 1: 0"},
             Case{"seconds are cut off both ends", {{"3/2/2026 8:00:59", "3/2/2026 8:01:00"}}, ""},
             Case{"16 hours", {{"3/2/2026 6:00", "3/2/2026 22:00"}}, ""},
             Case{"a minute longer", {{"3/2/2026 6:00", "3/2/2026 22:01"}}, "long 1: 961"},
             Case{"out over the end", {{"3/14/2026 22:00", "3/15/2026 6:00"}}, "crosses-end 1: 480"},
             Case{"until the end", {{"3/14/2026 22:00", "3/15/2026"}}, ""},
             Case{"in over the start", {{"2/28/2026 22:00", "3/1/2026 6:00"}}, "crosses-start 1: 480"},
             Case{"up to the start", {{"2/28/2026 22:00", "3/1/2026"}}, ""},
             Case{"over the whole period", {{"2/28/2026", "3/16/2026"}}, "crosses-end 1: 23040; crosses-start 1: 23040"},
             Case{"more than a day has", {{"3/2/2026", "3/2/2026 13:00"}, {"3/2/2026 13:00", "3/3/2026 0:01"}}, "long-day 1,2: 1441"},
             Case{"just a day", {{"3/2/2026", "3/2/2026 13:00"}, {"3/2/2026 13:00", "3/3/2026"}}, ""},
         }) {
        const CardCheck check = Check(Worker(), Rows(c.shifts));
        EXPECT_EQ(Summary(check), c.findings) << c.name;
        EXPECT_EQ(check.clockedIn, Summary(check).starts_with("clocked-in")) << c.name;
    }
}

TEST(CardCheckTest, GroupsShiftsThatShareAMinuteOrAStart)
{
    for (const Case& c : {
             Case{"one ends as the next starts", {{"3/2/2026 8:00", "3/2/2026 12:00"}, {"3/2/2026 12:00", "3/2/2026 16:00"}}, ""},
             Case{"within the same minute", {{"3/2/2026 8:00", "3/2/2026 12:00:59"}, {"3/2/2026 12:00:01", "3/2/2026 16:00"}}, ""},
             Case{"one minute", {{"3/2/2026 8:00", "3/2/2026 12:01"}, {"3/2/2026 12:00", "3/2/2026 16:00"}}, "overlap 1,2: 1"},
             Case{"a chain counts each minute once",
                  {{"3/2/2026 8:00", "3/2/2026 12:00"}, {"3/2/2026 9:00", "3/2/2026 11:00"}, {"3/2/2026 10:00", "3/2/2026 14:00"}},
                  "overlap 1,2,3: 180"},
             Case{"two groups",
                  {{"3/2/2026 8:00", "3/2/2026 10:00"},
                   {"3/2/2026 9:00", "3/2/2026 10:00"},
                   {"3/2/2026 10:00", "3/2/2026 12:00"},
                   {"3/2/2026 11:30", "3/2/2026 12:30"}},
                  "overlap 1,2: 60; overlap 3,4: 30"},
             Case{"with a shift that is not on the card",
                  {{"2/28/2026 20:00", "3/1/2026 2:00"}, {"3/1/2026 1:00", "3/1/2026 3:00"}},
                  "overlap 1,2: 60; crosses-start 1: 360"},
             Case{"both elsewhere", {{"3/20/2026 8:00", "3/20/2026 10:00"}, {"3/20/2026 9:00", "3/20/2026 10:00"}}, ""},
             Case{"the same start, one open",
                  {{"3/2/2026 8:00", "3/2/2026 10:00"}, {"3/2/2026 8:00", "-"}},
                  "open 2: 0; same-start 2,1: 120"},
             Case{"both closed", {{"3/2/2026 8:00", "3/2/2026 10:00"}, {"3/2/2026 8:00", "3/2/2026 9:00"}}, "overlap 2,1: 60"},
             Case{"a second apart", {{"3/2/2026 8:00:01", "3/2/2026 10:00"}, {"3/2/2026 8:00", "-"}}, "open 2: 0"},
         }) {
        EXPECT_EQ(Summary(Check(Worker(), Rows(c.shifts))), c.findings) << c.name;
    }
}

TEST(CardCheckTest, NamesRowsThatCannotBeReadWhereTheyBelong)
{
    for (const Case& c : {
             Case{"its start lies here", {{"3/2/2026 8:00", ""}}, "unreadable 1: 0"},
             Case{"its start lies elsewhere", {{"4/2/2026 8:00", ""}}, ""},
             Case{"its end lies here", {{"", "3/2/2026 8:00"}}, "unreadable 1: 0"},
             Case{"its end lies elsewhere", {{"", "3/15/2026"}}, ""},
             Case{"a start that is not set", {{"-", "3/2/2026 8:00"}}, "unreadable 1: 0"},
             Case{"neither", {{"", ""}}, "unreadable 1: 0"},
             Case{"nor an end that is set", {{"", "-"}}, "unreadable 1: 0"},
         }) {
        EXPECT_EQ(Summary(Check(Worker(), Rows(c.shifts))), c.findings) << c.name;
    }
    Punches taken = Rows({{"4/2/2026 8:00", ""}, {"3/2/2026 8:00", "3/2/2026 8:00"}});
    EXPECT_EQ(Check(Worker(), taken).figures, (CardFigures{"0.00", "0.00", "0.00"}));
    taken[0].fetched = true;
    const CardCheck check = Check(Worker(), taken);
    EXPECT_EQ(Summary(check), "empty 2: 0; unreadable 1: 0");
    EXPECT_FALSE(check.figures);
    EXPECT_EQ(check.findings[1].text, "Record 1, which begins on 04/02/2026 08:00 AM, cannot be read: it has the end later.");
}

TEST(CardCheckTest, ChecksDaysAndRatesAgainstTheEmployee)
{
    CEmployee unpaid = Worker();
    unpaid.PayRate(0);
    CEmployee unpaidOvertime = Worker();
    unpaidOvertime.OvertimePayRate(0);
    CEmployee hired = Worker();
    hired.HireDate(ToDateTime("3/3/2026"));
    hired.ReleaseDate(ToDateTime("3/5/2026"));
    struct EmployeeCase
    {
        const char* name;
        CEmployee employee;
        std::vector<Shift> shifts;
        const char* findings;
    };
    for (const EmployeeCase& c : {
             EmployeeCase{"all of it", Worker(60), {{"3/2/2026 8:00", "3/2/2026 9:00"}}, ""},
             EmployeeCase{"a minute more", Worker(60), {{"3/2/2026 8:00", "3/2/2026 8:59"}}, "deduction 1: 1"},
             EmployeeCase{"both shifts of a day",
                          Worker(60),
                          {{"3/2/2026 8:00", "3/2/2026 8:29"}, {"3/2/2026 9:00", "3/2/2026 9:30"}},
                          "deduction 1,2: 1"},
             EmployeeCase{"only an open one", Worker(60), {{"3/2/2026 8:00", "-"}}, "open 1: 0; deduction 1: 60"},
             EmployeeCase{"somebody at work", Worker(60), {{"3/14/2026 21:00", "-"}}, "clocked-in 1: 0"},
             EmployeeCase{"no rate", unpaid, {{"3/2/2026 8:00", "3/2/2026 17:00"}}, "no-rate : 480"},
             EmployeeCase{"no overtime rate", unpaidOvertime, {{"3/2/2026 8:00", "3/2/2026 17:00"}}, "no-rate : 60"},
             EmployeeCase{"no overtime either", unpaidOvertime, {{"3/2/2026 8:00", "3/2/2026 16:00"}}, ""},
             EmployeeCase{"on the first and last day", hired, {{"3/3/2026", "3/3/2026 1:00"}, {"3/5/2026 22:00", "3/6/2026"}}, ""},
             EmployeeCase{"before and after",
                          hired,
                          {{"3/2/2026 23:00", "3/3/2026"}, {"3/6/2026", "3/6/2026 1:00"}},
                          "not-employed 1: 60; not-employed 2: 60"},
         }) {
        EXPECT_EQ(Summary(Check(c.employee, Rows(c.shifts))), c.findings) << c.name;
    }
}

// Six days of eight hours: 8 hours above 40 that no day pays as overtime. The week counts whole, also outside the period.
TEST(CardCheckTest, ComparesWholeWeeksWithTheDailyRule)
{
    std::vector<Shift> shifts{{"3/2/2026 8:00", "3/2/2026 16:00"},
                              {"3/3/2026 8:00", "3/3/2026 16:00"},
                              {"3/4/2026 8:00", "3/4/2026 16:00"},
                              {"3/5/2026 8:00", "3/5/2026 16:00"},
                              {"3/6/2026 8:00", "3/6/2026 16:00"}};
    EXPECT_EQ(Summary(Check(Worker(), Rows(shifts))), "");
    shifts.push_back({"3/7/2026 8:00", "3/7/2026 16:01"});
    const CardCheck check = Check(Worker(), Rows(shifts));
    EXPECT_EQ(Summary(check), "week : 480");
    EXPECT_EQ(check.findings[0].text,
              "The week from 03/01/2026 has 48:01 hours, 8:01 above 40; the daily rule pays 0:01 of them as overtime.");
    EXPECT_EQ(check.findings[0].to, ToDateTime("3/8/2026"));
    EXPECT_EQ(check.LongestWeek(), 2881);
    EXPECT_EQ(check.notices, 1);
    EXPECT_EQ(check.problems, 0);

    CheckLimits saturdays;
    saturdays.firstWeekday = 6;
    EXPECT_EQ(Check(Worker(), Rows(shifts), saturdays).weeks.size(), 2U);
    shifts.back() = {"2/28/2026 8:00", "2/28/2026 16:00"}; // before the period, in its first week
    EXPECT_EQ(Summary(Check(Worker(), Rows(shifts), saturdays)), "week : 480");
    EXPECT_EQ(Summary(Check(Worker(), Rows(shifts))), "");
    EXPECT_TRUE(Check(Worker(), Rows({{"2/28/2026 8:00", "2/28/2026 16:00"}}), saturdays).weeks.empty()) << "nothing on the card";
    EXPECT_EQ(Check(Worker(60), Rows({{"3/2/2026 8:00", "3/2/2026 8:30"}})).LongestWeek(), -30);
}

TEST(CardCheckTest, KeepsToTheEndsOfTheCalendar)
{
    const Punches rows{{1, ToDateTime("1/1/100 8:00"), ToDateTime("12/31/9999"), true, "", ""}};
    const CEmployee employee = Worker();
    const CardCheck first = CheckCard({employee, ToDateTime("1/1/100"), ToDateTime("1/2/100")}, rows, kTo, {});
    EXPECT_EQ(first.weeks.at(0).from, ToDateTime("1/1/100"));
    const CardCheck last = CheckCard({employee, ToDateTime("12/31/9999"), ToDateTime("12/31/9999")}, rows, kTo, {});
    EXPECT_EQ(Summary(last).substr(0, 5), "long ");
}

} // namespace

} // namespace ptk
