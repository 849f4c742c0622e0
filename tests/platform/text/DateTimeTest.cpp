#include "platform/text/DateTime.h"

#include "support/Failures.h"

#include <gtest/gtest.h>

using namespace ptk;

namespace {

TEST(DateTimeTest, CountsSecondsFromTheZeroDate)
{
    struct Case
    {
        DateTime moment;
        std::int64_t seconds;
        std::int64_t day;
    };
    for (const Case& c :
         {Case{{}, 0, 0}, Case{{{1899, 12, 31}, {0, 0, 1}}, 86401, 1}, Case{{{1899, 12, 29}, {23, 59, 59}}, -1, -1},
          Case{{{1900, 3, 1}}, 61LL * 86400, 61}, Case{{{2003, 3, 5}, {8, 5, 9}}, 37685LL * 86400 + 29109, 37685},
          Case{{{100, 1, 1}}, -657434LL * 86400, -657434}, Case{{{9999, 12, 31}, {23, 59, 59}}, 2958466LL * 86400 - 1, 2958465}}) {
        EXPECT_EQ(c.moment.Seconds(), c.seconds);
        EXPECT_EQ(c.moment.DayNumber(), c.day);
        EXPECT_EQ(DateTime(c.moment.Date(), c.moment.Time()), c.moment);
    }
}

TEST(DateTimeTest, RefusesWhatIsNoMomentOrOutOfRange)
{
    for (const CalendarDate date :
         {CalendarDate{2003, 2, 29}, CalendarDate{2003, 13, 1}, CalendarDate{2003, 0, 1}, CalendarDate{2003, 1, -1},
          CalendarDate{2003, 257, 1}, CalendarDate{2003, 1, 257}, CalendarDate{2003, -255, 1}}) {
        EXPECT_EQ(FailureOf([&] { (void)DateTime(date); }), failure::InvalidProcedureCall);
    }
    for (const TimeOfDay time : {TimeOfDay{24, 0, 0}, TimeOfDay{0, 60, 0}, TimeOfDay{0, 0, -1}}) {
        EXPECT_EQ(FailureOf([&] { (void)DateTime(CalendarDate{}, time); }), failure::InvalidProcedureCall);
    }
    const DateTime last({9999, 12, 31}, {23, 59, 59});
    for (const int year : {99, 0, -1, 10000, 65536 + 2003, -65536 + 2003, INT32_MAX}) {
        EXPECT_EQ(FailureOf([&] { (void)DateTime(CalendarDate{year, 1, 1}); }), failure::Overflow) << year;
    }
    EXPECT_EQ(FailureOf([&] { (void)last.AddDays(1); }), failure::Overflow);
    EXPECT_EQ(FailureOf([&] { (void)DateTime({100, 1, 1}).AddDays(-1); }), failure::Overflow);
    EXPECT_EQ(FailureOf([&] { (void)last.AddDays(INT64_MAX); }), failure::Overflow);
    EXPECT_EQ(FailureOf([&] { (void)DateTime::FromSeconds(INT64_MIN); }), failure::Overflow);
}

TEST(DateTimeTest, DifferencesCountBoundariesCrossed)
{
    struct Case
    {
        const char* name;
        DateTime from, to;
        std::int64_t days, minutes;
    };
    const CalendarDate day{2003, 3, 5};
    const CalendarDate next{2003, 3, 6};
    for (const Case& c : {Case{"one second over a minute's edge", {day, {8, 0, 59}}, {day, {8, 1, 0}}, 0, 1},
                          Case{"59 seconds within a minute", {day, {8, 0, 0}}, {day, {8, 0, 59}}, 0, 0},
                          Case{"one second over midnight", {day, {23, 59, 59}}, {next, {0, 0, 0}}, 1, 1},
                          Case{"backwards", {next, {6, 0, 0}}, {day, {22, 0, 30}}, -1, -480},
                          Case{"across the zero date", {{1899, 12, 29}, {23, 59, 30}}, {{1899, 12, 30}, {0, 0, 30}}, 1, 1}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(DaysBetween(c.from, c.to), c.days);
        EXPECT_EQ(MinutesBetween(c.from, c.to), c.minutes);
    }
}

} // namespace
