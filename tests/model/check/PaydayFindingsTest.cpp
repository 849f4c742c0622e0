// What closings and changed clocks give rise to, for the two weeks from Sunday 3/1 to Saturday 3/14/2026.
#include "model/CEmployee.h"
#include "model/check/CardCheck.h"
#include "model/check/ClockChanges.h"
#include "model/payday/Closing.h"
#include "platform/text/Text.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gtest/gtest.h>

namespace ptk {

namespace {

struct Worked
{
    const char* start; // "-" is not set
    const char* end;
};

PayPeriod Days(const char* from, const char* to)
{
    return {ToDateTime(from), ToDateTime(to)};
}

const PayPeriod kDays = Days("3/1/2026", "3/14/2026");

Punches RowsOf(const std::vector<Worked>& shifts)
{
    Punches punches;
    for (const Worked& shift : shifts) {
        const DateTime end = std::string(shift.end) == "-" ? DateTime() : ToDateTime(shift.end);
        const DateTime start = ToDateTime(shift.start);
        const auto id = static_cast<std::int64_t>(punches.size() + 1);
        punches.push_back({id, start, end, start >= kDays.from && end <= kDays.to.AddDays(1), "", ""});
    }
    return punches;
}

CardCheck CheckWith(const std::vector<Worked>& shifts, const CardFacts& facts)
{
    CEmployee employee;
    employee.PayRate(10);
    employee.OvertimePayRate(15);
    return CheckCard({employee, kDays.from, kDays.to}, RowsOf(shifts), ToDateTime("3/15/2026 12:00"), {}, facts);
}

std::string Found(const CardCheck& check)
{
    std::string text;
    for (const Finding& finding : check.findings) {
        text += fmt::format("{} {}: {}; ", KindName(finding.kind), fmt::join(finding.records, ","), finding.minutes);
    }
    return text;
}

TEST(PaydayFindingsTest, CompareTheCardWithWhatWasPaid)
{
    const std::vector<Worked> eightHours{{"3/2/2026 8:00", "3/2/2026 16:00"}};
    struct Paid
    {
        const char* name;
        std::vector<Worked> shifts;
        std::vector<const char*> paid; // regular, overtime, gross
        const char* found;
        const char* difference;
        const char* text;
    };
    for (const Paid& c : {
             Paid{"as paid", eightHours, {"8.00", "0.00", "80.00"}, "", "none", ""},
             Paid{"more",
                  eightHours,
                  {"7.50", "0.25", "79.00"},
                  "paid-changed : 15; ",
                  "+0.50 -0.25 +1.00",
                  "Paid 7.75 hours, now 8.00: +1.00 owed."},
             Paid{"less",
                  eightHours,
                  {"8.00", "0.75", "91.25"},
                  "paid-changed : -45; ",
                  "+0.00 -0.75 -11.25",
                  "Paid 8.75 hours, now 8.00: 11.25 paid too much."},
             Paid{"no number",
                  eightHours,
                  {"8.00", "much", "80.00"},
                  "paid-changed : 0; ",
                  "unknown",
                  "This period was paid, but the figures that were paid cannot be read."},
             Paid{"all records gone",
                  {},
                  {"8.00", "0.00", "80.00"},
                  "paid-changed : -480; ",
                  "-8.00 +0.00 -80.00",
                  "Paid 8.00 hours, now 0.00: 80.00 paid too much."},
         }) {
        ClosingsOfEmployee closings;
        Closing paid;
        paid.period = kDays;
        paid.regular = c.paid[0];
        paid.overtime = c.paid[1];
        paid.gross = c.paid[2];
        closings.ofPeriod = {Closing{}, paid};
        const CardCheck check = CheckWith(c.shifts, {.closings = &closings});
        EXPECT_EQ(Found(check), c.found) << c.name;
        const auto shown = [&](const PaidDifference& d) { return d.gross ? *d.regular + ' ' + *d.overtime + ' ' + *d.gross : "unknown"; };
        EXPECT_EQ(check.changed ? shown(*check.changed) : "none", c.difference) << c.name;
        if (!check.findings.empty()) {
            EXPECT_EQ(check.findings[0].text, c.text) << c.name;
            EXPECT_EQ(check.findings[0].to, ToDateTime("3/15/2026")) << c.name;
        }
    }
}

TEST(PaydayFindingsTest, TellOfDaysThatLieInTwoPeriodsOrInNone)
{
    struct Closed
    {
        const char* name;
        std::vector<Worked> shifts;
        std::vector<PayPeriod> touching;
        const char* lastDayBefore;
        const char* found;
    };
    const std::vector<Worked> early{{"3/3/2026 8:00", "3/3/2026 9:00"}, {"3/3/2026 10:00", "3/3/2026 12:00"}, {"3/5/2026 8:00", "-"}};
    for (const Closed& c : {
             Closed{"once a day", early, {Days("2/20/2026", "3/3/2026")}, "", "twice 1,2: 180; open 3: 0; "},
             Closed{"an open one, too", early, {Days("3/4/2026", "3/6/2026")}, "", "open 3: 0; twice 3: 0; "},
             Closed{"not of another day", early, {Days("3/7/2026", "3/20/2026")}, "", "open 3: 0; "},
             Closed{"in none",
                    {{"2/25/2026 8:00", "2/25/2026 9:00"}, {"2/26/2026 8:00", "2/26/2026 9:00"}, {"2/28/2026 23:00", "2/28/2026 23:30"}},
                    {},
                    "2/25/2026",
                    "between 2,3: 90; "},
             Closed{
                 "in one that reaches into this", {{"2/27/2026 8:00", "2/27/2026 9:00"}}, {Days("2/26/2026", "3/1/2026")}, "2/25/2026", ""},
             Closed{"nothing closed before", {{"2/27/2026 8:00", "2/27/2026 9:00"}}, {}, "", ""},
         }) {
        ClosingsOfEmployee closings;
        closings.touching = c.touching;
        if (*c.lastDayBefore != '\0') {
            closings.lastDayBefore = ToDateTime(c.lastDayBefore);
        }
        EXPECT_EQ(Found(CheckWith(c.shifts, {.closings = &closings})), c.found) << c.name;
    }
}

TEST(PaydayFindingsTest, TellOfSomebodyWhoCameBeforeAlone)
{
    const CardFacts came{.workedBefore = [] { return true; }};
    EXPECT_EQ(Found(CheckWith({}, came)), "no-shift : 0; ");
    EXPECT_EQ(Found(CheckWith({{"3/14/2026 22:00", "3/15/2026 6:00"}}, came)), "no-shift : 0; crosses-end 1: 480; ");
    EXPECT_EQ(Found(CheckWith({{"3/2/2026 8:00", "3/2/2026 9:00"}}, came)), "");
    EXPECT_EQ(Found(CheckWith({}, {.workedBefore = [] { return false; }})), "");
}

// Put forward by an hour on 3/8/2026 at 2:00.
TEST(PaydayFindingsTest, TellOfAShiftThatTheClockWasChangedIn)
{
    ClockChanges clock([](DateTime moment) { return moment < ToDateTime("3/8/2026 2:00") ? -18000 : -14400; });
    const CardFacts facts{.clock = &clock};
    const CardCheck check = CheckWith({{"3/7/2026 22:00", "3/8/2026 6:00"}, {"3/8/2026 6:00", "3/8/2026 7:00"}}, facts);
    EXPECT_EQ(Found(check), "clock-change 1: 480; ");
    EXPECT_EQ(check.findings[0].text,
              "The shift from 03/07/2026 10:00 PM to 03/08/2026 06:00 AM counts 8:00 hours and lasted 7:00: the clock was changed in it.");
    EXPECT_EQ(Found(CheckWith({{"3/8/2026 1:00", "3/8/2026 1:59"}, {"3/8/2026 1:59:59", "3/8/2026 3:00"}}, facts)), "clock-change 2: 61; ");
}

} // namespace

} // namespace ptk
