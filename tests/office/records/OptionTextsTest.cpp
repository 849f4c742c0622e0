#include "office/records/OptionTexts.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Failures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

const DateTime kMidnight;
const DateTime kEight({}, {8, 0, 0});
const DateTime kFive({}, {17, 0, 0});

TEST(StoreOptionsTest, StopsAtTheFirstTextThatIsNone)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/options.mdb";
    CreateDatabase(path);
    CSystemOptions options;
    const auto database = std::make_shared<CJetDB>(folder.Path());
    database->DatabaseName(path);
    options.PTKDatabase(database);
    struct Case
    {
        OptionTexts texts;
        std::int16_t length;
        DateTime start;
        DateTime end;
        bool stored;
    };
    for (const Case& c : {Case{{"abc", "9:00", "18:00"}, 0, kEight, kFive, false},
                          {{"", "9:00", "18:00"}, 0, kEight, kFive, false},
                          {{"-", "9:00", "18:00"}, 0, kEight, kFive, false},
                          {{"7", "", "18:00"}, 7, kMidnight, kFive, false},
                          {{"7", "soon", "18:00"}, 7, kMidnight, kFive, false},
                          {{"7", "8:00", "25:00"}, 7, kEight, kMidnight, false},
                          {{"-5", "8:00", "17:00"}, 0, kEight, kFive, true},
                          {{"0", "1/1/1800", "17:00"}, 0, kMidnight, kFive, true}}) {
        SCOPED_TRACE(c.texts.periodLength + ", " + c.texts.autoShiftStart + ", " + c.texts.autoShiftEnd);
        options.PeriodLength(14);
        options.AutoShiftStartTime(kEight);
        options.AutoShiftEndTime(kFive);
        EXPECT_EQ(StoreOptions(options, c.texts), c.stored);
        EXPECT_EQ(options.PeriodLength(), c.length);
        EXPECT_EQ(options.AutoShiftStartTime(), c.start);
        EXPECT_EQ(options.AutoShiftEndTime(), c.end);
    }
    EXPECT_EQ(FailureOf([&] { return StoreOptions(options, {"99999", "8:00", "17:00"}); }), failure::Overflow);
}

TEST(PeriodExampleTest, CountsTheDayThatALengthDoesNotSay)
{
    const DateTime today(CalendarDate{2003, 3, 5});
    EXPECT_EQ(PeriodExample("14", today), "A period has 15 days, for example 03/05/2003 - 03/19/2003");
    EXPECT_EQ(PeriodExample("-3", today), "A period has 1 day, for example 03/05/2003 - 03/05/2003");
    for (const char* none : {"", "two", "99999"}) {
        EXPECT_EQ(PeriodExample(none, today), "") << none;
    }
}

TEST(LimitTextsTest, TakeWholeHoursOfAUsualShift)
{
    const LimitTexts shown = ShowLimits({12, 1, false});
    EXPECT_EQ(shown, (LimitTexts{"12", 1, false}));
    const auto read = ReadLimits(shown);
    ASSERT_TRUE(read);
    EXPECT_EQ(ShowLimits(*read), shown);
    EXPECT_EQ(LimitRefusal(shown), "");
    for (const char* hours : {"", "0", "1000", "-3", "8.5", "long", "99999999999"}) {
        EXPECT_FALSE(ReadLimits({hours, 0, true})) << hours;
        EXPECT_EQ(LimitRefusal({hours, 0, true}), "The longest usual shift is a whole number of hours from 1 to 999") << hours;
    }
    EXPECT_TRUE(ReadLimits({"1", 6, true}) && ReadLimits({"999", 0, true}));
}

} // namespace

} // namespace ptk
