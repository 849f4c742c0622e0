// What the time and date boxes understand.
#include "platform/text/TypedTime.h"
#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

struct Case
{
    const char* typed;
    const char* read; // "" when it cannot be read
};

std::string Text(std::optional<DateTime> value, const char* format)
{
    return value ? FormatDateTime(*value, format) : "";
}

TEST(TypedTimeTest, ReadsWhatCanBeATime)
{
    for (const Case& c : {Case{"830", "08:30:00 AM"},
                          {"0830", "08:30:00 AM"},
                          {"8.30", "08:30:00 AM"},
                          {"8:30", "08:30:00 AM"},
                          {"830a", "08:30:00 AM"},
                          {"5p", "05:00:00 PM"},
                          {"17", "05:00:00 PM"},
                          {" 8 ", "08:00:00 AM"},
                          {"8:5", "08:05:00 AM"},
                          {"0", "12:00:00 AM"},
                          {"2359", "11:59:00 PM"},
                          {"8:30:15 PM", "08:30:15 PM"},
                          {"12a", "12:00:00 AM"},
                          {"12 pm", "12:00:00 PM"},
                          {"12:30 AM", "12:30:00 AM"}}) {
        EXPECT_EQ(Text(ReadTypedTime(c.typed), "hh:mm:ss AM/PM"), c.read) << c.typed;
    }
}

TEST(TypedTimeTest, LeavesAloneWhatCannotBeATime)
{
    for (const char* typed :
         {"",     " ",       "a",     "pm",  "24", "2400", "860", "12345", "8.5",        "8:",       ":30",
          "8:60", "8:30:60", "8:30:", "13p", "0a", "8-30", "-8",  "8x",    "8:30 AM PM", "3/5/2003", "\xF0\x9F\x95\x92"}) {
        EXPECT_EQ(Text(ReadTypedTime(typed), "hh:mm:ss AM/PM"), "") << typed;
    }
    EXPECT_FALSE(ReadTypedTime(std::string(10000, '8')));
}

TEST(TypedDateTest, ReadsDatesAndCompletesThemWithThisYear)
{
    const DateTime today(CalendarDate{2003, 3, 5});
    for (const Case& c : {Case{"3/5", "03/05/2003"},
                          {"3-5", "03/05/2003"},
                          {" 12/31 ", "12/31/2003"},
                          {"3/5/26", "03/05/2026"},
                          {"3/5/1999", "03/05/1999"},
                          {"2003-03-05", "03/05/2003"},
                          {"March 5, 2003", "03/05/2003"},
                          {"2/29", ""},
                          {"2/29/2004", "02/29/2004"},
                          {"", ""},
                          {"3", ""},
                          {"3/", ""},
                          {"soon", ""},
                          {"8:30", ""},
                          {"12/30/1899", ""},
                          {"3/5/2003 8:00 AM", ""}}) {
        EXPECT_EQ(Text(ReadTypedDate(c.typed, today), "mm/dd/yyyy"), c.read) << c.typed;
    }
}

TEST(TypedTimeTest, PutsADayAndATimeTogether)
{
    const DateTime today({2003, 3, 7});
    struct Pair
    {
        const char* day;
        const char* time;
        const char* moment; // empty: Failure 13
    };
    for (const Pair& c : {
             Pair{"3/5", "830p", "3/5/2003 8:30:00 PM"},
             {"03/05/2003", "", "3/5/2003"},
             {"", "17", "5:00:00 PM"},
             {"12/30/1899", "8:00", "8:00:00 AM"},
             {"3/5/2003 8:00", "", "3/5/2003 8:00:00 AM"},
             {"3/5/2003 8:00", "9:00", ""},
             {"3/5", "late", ""},
             {"soon", "8:00", ""},
             {"soon", "", ""},
             {"", "late", ""},
             {"", "", ""},
         }) {
        std::string moment;
        try {
            moment = GeneralText(Together(TypedDate(c.day, today), TypedTime(c.time)));
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.Number(), failure::TypeMismatch);
        }
        EXPECT_EQ(moment, c.moment) << c.day << '|' << c.time;
    }
}

} // namespace

} // namespace ptk
