#include "model/PayPeriod.h"

#include "platform/Failure.h"

#include <gtest/gtest.h>

#include <utility>

namespace ptk {

namespace {

TEST(PayPeriodTest, StepsWithoutOverlapOrGap)
{
    struct Case
    {
        CalendarDate from;
        std::int16_t length;
        std::int16_t direction;
        std::optional<std::pair<CalendarDate, CalendarDate>> next;
    };
    using Next = std::pair<CalendarDate, CalendarDate>;
    for (const Case& c : {Case{{2003, 3, 1}, 7, 1, Next{{2003, 3, 9}, {2003, 3, 16}}},
                          {{2003, 3, 1}, 7, -1, Next{{2003, 2, 21}, {2003, 2, 28}}},
                          {{2004, 3, 1}, 7, -1, Next{{2004, 2, 22}, {2004, 2, 29}}},
                          {{2003, 3, 1}, 0, 1, Next{{2003, 3, 2}, {2003, 3, 2}}},
                          {{2003, 3, 1}, 0, -1, Next{{2003, 2, 28}, {2003, 2, 28}}},
                          {{2003, 3, 1}, 7, 0, {}},
                          {{2003, 3, 1}, 7, 2, {}},
                          {{2003, 3, 1}, 7, -2, {}},
                          {{1900, 1, 3}, 1, -1, Next{{1900, 1, 1}, {1900, 1, 2}}},
                          {{1900, 1, 2}, 1, -1, {}},
                          {{2100, 12, 28}, 1, 1, Next{{2100, 12, 30}, {2100, 12, 31}}},
                          {{2100, 12, 29}, 1, 1, {}}}) {
        const auto next = StepPayPeriod(DateTime(c.from), c.length, c.direction);
        SCOPED_TRACE(testing::Message() << c.from.year << " " << c.length << " " << c.direction);
        ASSERT_EQ(next.has_value(), c.next.has_value());
        if (next) {
            EXPECT_EQ(next->from, DateTime(c.next->first));
            EXPECT_EQ(next->to, DateTime(c.next->second));
        }
    }
}

TEST(PayPeriodTest, OffersTheRunningHalfOfTheMonthAndTheYear)
{
    struct Case
    {
        DateTime today;
        std::int16_t length;
        DateTime from;
        DateTime to;
    };
    for (const Case& c : {Case{DateTime({2003, 3, 1}), 14, DateTime({2003, 3, 1}), DateTime({2003, 3, 15})},
                          Case{DateTime({2003, 3, 15}), 14, DateTime({2003, 3, 1}), DateTime({2003, 3, 15})},
                          Case{DateTime({2003, 3, 16}), 14, DateTime({2003, 3, 15}), DateTime({2003, 3, 29})},
                          Case{DateTime({2003, 12, 31}), 21, DateTime({2003, 12, 15}), DateTime({2004, 1, 5})},
                          Case{DateTime({2004, 2, 29}), 15, DateTime({2004, 2, 15}), DateTime({2004, 3, 1})},
                          Case{DateTime({2003, 3, 2}, {13, 0, 0}), 0, DateTime({2003, 3, 1}), DateTime({2003, 3, 1})}}) {
        const PayPeriod period = DefaultPayPeriod(c.today, c.length);
        EXPECT_EQ(period.from, c.from) << c.today.DayNumber();
        EXPECT_EQ(period.to, c.to) << c.today.DayNumber();
    }
    EXPECT_EQ(YearToDate(DateTime({2003, 3, 20}, {9, 0, 0})).from, DateTime({2003, 1, 1}));
    EXPECT_EQ(YearToDate(DateTime({2003, 3, 20}, {9, 0, 0})).to, DateTime({2003, 3, 20}));
}

TEST(PayPeriodTest, CountsItsStepIn16Bits)
{
    const DateTime from({2003, 3, 1});
    const auto back = StepPayPeriod(from, 32767, -1);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(back->to, DateTime({2003, 2, 28}));
    try {
        StepPayPeriod(from, 32767, 1);
        FAIL() << "32768 days";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 6);
    }
}

} // namespace

} // namespace ptk
