// Words of the findings that a card rarely has.
#include "model/check/FindingText.h"

#include "model/check/CardCheck.h"
#include "model/payday/Closing.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(FindingTextTest, HoursAndForeignValues)
{
    EXPECT_EQ(HoursAndMinutes(65), "1:05");
    EXPECT_EQ(HoursAndMinutes(-65), "-1:05");
    EXPECT_EQ(HoursAndMinutes(59), "0:59");
    EXPECT_EQ(QuotedValue(std::string("a\tb\x7F")), "\"a?b?\"");
    const std::string shown = QuotedValue(std::string(200, 'x') + "y");
    EXPECT_TRUE(shown.ends_with("x...\"")) << shown;
    std::string accents;
    for (int i = 0; i < 200; ++i) {
        accents += "\xC3\xA9"; // e with an acute accent, in two bytes
    }
    for (const char* before : {"", "a"}) {
        const std::string cut = QuotedValue(before + accents);
        EXPECT_TRUE(cut.ends_with("\xA9...\"")) << "no half character: " << cut;
    }
}

TEST(FindingTextTest, WhoIsNotEmployedAndWhatWasPaid)
{
    Punch punch;
    punch.start = ToDateTime("3/5/2026 8:00");
    punch.end = ToDateTime("3/5/2026 16:00");
    const DateTime never;
    EXPECT_EQ(NotEmployedText(punch, ToDateTime("3/6/2026"), never),
              "The shift of 03/05/2026 08:00 AM starts before the hire date 03/06/2026.");
    EXPECT_EQ(NotEmployedText(punch, never, ToDateTime("3/4/2026")),
              "The shift of 03/05/2026 08:00 AM starts after the release date 03/04/2026.");
    EXPECT_EQ(NotEmployedText(punch, ToDateTime("3/1/2026"), ToDateTime("3/4/2026")),
              "The shift of 03/05/2026 08:00 AM starts after the release date 03/04/2026.");
    Closing paid;
    paid.regular = "8.00";
    paid.overtime = "1.00";
    const CardFigures now{"8.00", "1.50", "102.50"};
    EXPECT_EQ(PaidChangedText(paid, std::nullopt, std::nullopt), "This period was paid, and its card cannot be computed any more.");
    EXPECT_EQ(PaidChangedText(paid, now, std::nullopt), "This period was paid, but the figures that were paid cannot be read.");
    EXPECT_EQ(PaidChangedText(paid, now, "7.50"), "Paid 9.00 hours, now 9.50: 7.50 owed.");
    EXPECT_EQ(PaidChangedText(paid, now, "-7.50"), "Paid 9.00 hours, now 9.50: 7.50 paid too much.");
    Finding between;
    between.records = {7};
    between.minutes = 480;
    between.from = ToDateTime("3/5/2026 8:00");
    EXPECT_EQ(BetweenText(between),
              "1 shift with 8:00 hours from 03/05/2026 08:00 AM on lies between the last closed period and this one: no card has them.");
    between.records = {7, 8};
    EXPECT_EQ(BetweenText(between),
              "2 shifts with 8:00 hours from 03/05/2026 08:00 AM on lie between the last closed period and this one: no card has them.");
}

} // namespace

} // namespace ptk
