#include "office/card/CardTexts.h"
#include "office/card/NewRecord.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(CardTextsTest, NamesACardThatIsNotTheChosenOne)
{
    const CardName ann{"Ann Lee", "02/18/2003 - 03/04/2003"};
    struct Case
    {
        CardName card;
        bool shown;
        CardName chosen;
        const char* text;
    };
    for (const Case& c : {
             Case{ann, true, ann, ""},
             {{}, false, ann, ""},
             {ann,
              true,
              {"Omar Haddad", ann.period},
              "This is Ann Lee's card, 02/18/2003 - 03/04/2003. Press Generate Timecard for Omar Haddad."},
             {ann,
              true,
              {"Ann Lee", "03/05/2003 - 03/19/2003"},
              "This is Ann Lee's card, 02/18/2003 - 03/04/2003. Press Generate Timecard for Ann Lee."},
             {ann,
              true,
              {"", ann.period},
              "This is Ann Lee's card, 02/18/2003 - 03/04/2003. Choose an employee and press Generate Timecard."},
             {ann,
              false,
              {"Omar Haddad", ann.period},
              "New Record still goes to Ann Lee's card, 02/18/2003 - 03/04/2003. Press Generate Timecard for Omar Haddad."},
         }) {
        EXPECT_EQ(StrangeCardText(c.card, c.shown, c.chosen), c.text);
    }
    EXPECT_EQ(RecordOwnerText("Ann Lee", "Ann Lee"), "For Ann Lee");
    EXPECT_EQ(RecordOwnerText("Ann Lee", "Omar Haddad"), "For Ann Lee, whose card was generated last, not for Omar Haddad");
    EXPECT_EQ(RecordOwnerText("Ann Lee", ""), "For Ann Lee, whose card was generated last");
    EXPECT_EQ(RecordOwnerText("", "Ann Lee"), "This card is nobody's: a record cannot be saved in it.");
    EXPECT_EQ(WeekdayName(DateTime({2003, 3, 5}, {23, 0, 0})), "Wednesday");
    EXPECT_EQ(WeekdayName(DateTime({1899, 12, 29})), "Friday");
}

RecordTexts Typed(const std::array<const char*, 4>& texts)
{
    const DateTime today({2003, 3, 7});
    return {TypedDate(texts[0], today), TypedTime(texts[1]), TypedDate(texts[2], today), TypedTime(texts[3])};
}

TEST(NewRecordTest, WarnsOfMoreThanALongShift)
{
    struct Case
    {
        std::array<const char*, 4> texts;
        const char* warning;
    };
    for (const Case& c : {
             Case{{"03/05/2003", "8:00", "03/06/2003", "0:00:59"}, ""}, // 16 hours: seconds do not count
             {{"03/05/2003", "8:00", "03/06/2003", "0:01"}, "This shift has 16:01 hours, more than the longest usual one of 16. "},
             {{"11/12/2003", "8a", "11/25/2003", "420p"}, "This shift has 320:20 hours, more than the longest usual one of 16. "},
             {{"03/05/2003", "8:00", "03/04/2003", "8:00"}, ""},
             {{"03/05/2003", "8:00", "03/09/2003", "late"}, ""},
         }) {
        EXPECT_EQ(LongShiftWarning(Typed(c.texts), 16), c.warning) << c.texts[3];
    }
}

TEST(NewRecordTest, SaysWhatWasStoredWhereATextCouldNotBeRead)
{
    struct Case
    {
        std::array<const char*, 4> texts;
        DateTime start;
        DateTime end;
        const char* said;
    };
    const DateTime eight({2003, 3, 5}, {8, 0, 0});
    const DateTime five({2003, 3, 5}, {17, 0, 0});
    for (const Case& c : {
             Case{{"3/5", "8a", "3/5", "5p"}, eight, five, "Record saved for Ann Lee"},
             {{"3/5", "8a", "3/5", "late"},
              eight,
              five,
              "Record saved, but the end could not be read: Ann Lee, 03/05/2003 08:00 AM - 03/05/2003 05:00 PM"},
             {{"13/45", "8a", "3/5", "5p"},
              eight,
              five,
              "Record saved, but the start could not be read: Ann Lee, 03/05/2003 08:00 AM - 03/05/2003 05:00 PM"},
             {{"13/45", "8a", "3/5", "6p"},
              eight,
              five,
              "Record saved, but the start could not be read, and the end was not taken: Ann Lee, 03/05/2003 08:00 AM - 03/05/2003 05:00 "
              "PM"},
             {{"13/45", "8a", "3/5", "late"}, {}, {}, "Record saved, but start and end could not be read: Ann Lee, no start - no end"},
         }) {
        EXPECT_EQ(SavedRecordText("Ann Lee", Typed(c.texts), c.start, c.end), c.said);
    }
}

TEST(NewRecordTest, WarnsOfAnotherPeriodAndOfNoHours)
{
    const PayPeriod period{DateTime({2003, 3, 5}), DateTime({2003, 3, 19})};
    const std::string outside = "This record lies outside the period 03/05/2003 - 03/19/2003.";
    const std::string midnights = "This record runs from midnight to midnight. ";
    const std::string backward = "This record ends before it starts and counts 0 hours. ";
    struct Case
    {
        std::array<const char*, 4> texts;
        std::string warning;
    };
    const auto warning = [](const std::array<const char*, 4>& texts, const std::optional<PayPeriod>& shown) {
        return NewRecordWarning(Typed(texts), shown);
    };
    for (const Case& c : {
             Case{{"03/05/2003", "08:00:00 AM", "03/05/2003", "05:00:00 PM"}, ""},
             {{"03/19/2003", "08:00:00 PM", "03/20/2003", ""}, ""}, // up to the midnight after the last day
             {{"03/19/2003", "08:00:00 PM", "03/20/2003", "12:01:00 AM"}, outside},
             {{"03/04/2003", "11:59:00 PM", "03/05/2003", "08:00:00 AM"}, outside},
             {{"03/05/2003", "", "03/05/2003", ""}, midnights},
             {{"03/05/2003", "12:00:00 AM", "03/06/2003", "12:00:00 AM"}, midnights},
             {{"03/20/2003", "", "03/20/2003", ""}, midnights + outside},
             {{"03/05/2003", "10:00:00 PM", "03/05/2003", "06:00:00 AM"}, backward},
             {{"03/05/2003", "8:00", "03/05/2003", "late"}, ""},
             {{"", "", "03/05/2003", ""}, ""},
         }) {
        EXPECT_EQ(warning(c.texts, period), c.warning) << c.texts[0] << c.texts[1] << c.texts[3];
    }
    EXPECT_EQ(warning({"03/04/2003", "8:00", "03/04/2003", "9:00"}, std::nullopt), "");
}

} // namespace

} // namespace ptk
