#include "platform/text/Text.h"

#include "platform/text/Value.h"
#include "support/Failures.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>

using namespace ptk;

namespace {

const DateTime kMorning({2003, 3, 5}, {8, 5, 9});

TEST(DateTimeTextTest, GeneralTextLeavesOutMidnightAndTheZeroDate)
{
    struct Case
    {
        DateTime moment;
        const char* general;
        const char* date;
    };
    for (const Case& c : {Case{kMorning, "3/5/2003 8:05:09 AM", "3/5/2003"}, Case{{{2003, 12, 31}}, "12/31/2003", "12/31/2003"},
                          Case{{}, "12:00:00 AM", "12/30/1899"}, Case{{{1899, 12, 30}, {17, 0, 0}}, "5:00:00 PM", "12/30/1899"},
                          Case{{{2003, 1, 1}, {12, 0, 0}}, "1/1/2003 12:00:00 PM", "1/1/2003"},
                          Case{{{2003, 1, 1}, {0, 0, 1}}, "1/1/2003 12:00:01 AM", "1/1/2003"}, Case{{{100, 1, 1}}, "1/1/100", "1/1/100"}}) {
        EXPECT_EQ(GeneralText(c.moment), c.general);
        EXPECT_EQ(ShortDateText(c.moment), c.date);
    }
}

TEST(DateTimeTextTest, FormatsByPattern)
{
    struct Case
    {
        const char* pattern;
        const char* expected;
    };
    const DateTime evening({2003, 3, 5}, {20, 5, 9});
    for (const Case& c : {Case{"mm/dd/yyyy hh:mm AM/PM", "03/05/2003 08:05 PM"}, Case{"mm/dd/yyyy", "03/05/2003"}, Case{"m/d/yy", "3/5/03"},
                          Case{"hh:mm:ss AM/PM", "08:05:09 PM"}, Case{"h:n:s", "20:5:9"}, Case{"hh:nn", "20:05"},
                          Case{"mm hh mm", "03 20 05"}, Case{"yyyy-mm-dd", "2003-03-05"}, Case{"", ""}}) {
        EXPECT_EQ(FormatDateTime(evening, c.pattern), c.expected) << c.pattern;
    }
    EXPECT_EQ(FormatDateTime(DateTime(), "mm/dd/yyyy hh:mm AM/PM"), "12/30/1899 12:00 AM");
    EXPECT_EQ(FormatDateTime(DateTime({100, 1, 2}), "mm/dd/yyyy"), "01/02/0100");
}

TEST(DateTimeTextTest, ReadsWhatPeopleAndStatementsWrite)
{
    struct Case
    {
        const char* text;
        DateTime expected;
    };
    const CalendarDate day{2003, 3, 5};
    const CalendarDate zero{};
    for (const Case& c : {Case{"3/5/2003 8:05:09 AM", kMorning},
                          Case{"  03-05-2003  ", day},
                          Case{"3/5/03", day},
                          Case{"3/5/29", {{2029, 3, 5}}},
                          Case{"3/5/30", {{1930, 3, 5}}},
                          Case{"3/5/0", {{2000, 3, 5}}},
                          Case{"3/5/100", {{100, 3, 5}}},
                          Case{"2003-03-05", day},
                          Case{"1900/1/1", {{1900, 1, 1}}},
                          Case{"2003-03-05 08:05:09", kMorning},
                          Case{"13/5/2003", {{2003, 5, 13}}},
                          Case{"2003/13/5", {{2003, 5, 13}}},
                          Case{"March 5, 2003", day},
                          Case{"mar 5 2003", day},
                          Case{"5 March 2003 8:05:09", kMorning},
                          Case{"5-Mar-2003", day},
                          Case{"2/29/2004", {{2004, 2, 29}}},
                          Case{"8:05", {zero, {8, 5, 0}}},
                          Case{"8:5", {zero, {8, 5, 0}}},
                          Case{"17:00:00", {zero, {17, 0, 0}}},
                          Case{"12:00:00 AM", {}},
                          Case{"12:30pm", {zero, {12, 30, 0}}},
                          Case{"12/31/9999 11:59:59 PM", {{9999, 12, 31}, {23, 59, 59}}}}) {
        EXPECT_EQ(ParseDateTime(c.text), std::optional(c.expected)) << c.text;
    }
}

TEST(DateTimeTextTest, RefusesAnythingElse)
{
    for (const char* text : {"",
                             " ",
                             "37685",
                             "3.5",
                             "3/5",
                             "8",
                             "8 AM",
                             "13:00 PM",
                             "0:30 AM",
                             "24:00",
                             "8:60",
                             "8:05:60",
                             "8:5:9:1",
                             "2/29/2003",
                             "2/29/1900",
                             "13/13/2003",
                             "0/5/2003",
                             "3/0/2003",
                             "3/5/99999",
                             "3/5/20033",
                             "3-5/2003",
                             "3//2003",
                             "3/5/2003x",
                             "3/5/20038:05",
                             "3/5/2003 8",
                             "8:05 3/5/2003",
                             "8:05 XM",
                             "Maybe 5, 2003",
                             "March 2003",
                             "Mar32003",
                             "1/1/50 BC",
                             "-3/5/2003",
                             "2003-03-05T08:05:09",
                             "abc",
                             "3/5/2003,8:05"}) {
        EXPECT_FALSE(ParseDateTime(text)) << text;
        EXPECT_EQ(FailureOf([&] { (void)ToDateTime(text); }), failure::TypeMismatch) << text;
    }
    EXPECT_FALSE(ParseDateTime(std::string_view("3/5/2003\0", 9)));
}

TEST(NumberTextTest, ReadsIntegersRoundingHalfToEven)
{
    struct Case
    {
        const char* text;
        std::int32_t expected;
    };
    for (const Case& c : {Case{"0", 0}, Case{" 12 ", 12}, Case{"-5", -5}, Case{"+7", 7}, Case{"2.5", 2}, Case{"3.5", 4}, Case{"-2.5", -2},
                          Case{"2.51", 3}, Case{".5", 0}, Case{"1.", 1}, Case{"32767", 32767}, Case{"-32768.5", -32768}}) {
        EXPECT_EQ(ToInt16(c.text), c.expected) << c.text;
        EXPECT_EQ(ToInt32(c.text), c.expected) << c.text;
    }
    EXPECT_EQ(ToInt32("2147483647.4"), 2147483647);
    EXPECT_EQ(FailureOf([] { (void)ToInt16("32767.5"); }), failure::Overflow);
    EXPECT_EQ(FailureOf([] { (void)ToInt32("2147483648"); }), failure::Overflow);
    EXPECT_EQ(FailureOf([] { (void)ToInt32("99999999999999999999999"); }), failure::Overflow);
    for (const char* text : {"", " ", "a", "12a", "1 2", "--1", "1.2.3", ".", "-", "inf", "nan", "0x10", "1,000", "1e", "e5"}) {
        EXPECT_EQ(FailureOf([&] { (void)ToInt16(text); }), failure::TypeMismatch) << text;
    }
}

TEST(NumberTextTest, ReadsSinglesAndBooleans)
{
    EXPECT_EQ(ToSingle("12.5"), 12.5F);
    EXPECT_EQ(ToSingle(" -0.1"), -0.1F);
    for (const std::string& text :
         {std::string("1e-60"), std::string("-5000e-60"), std::string("1e-99999999999"), std::string("0e99999999999"),
          "0." + std::string(400, '0') + "1", "1" + std::string(400, '0') + "e-900"}) {
        EXPECT_EQ(ToSingle(text), 0.0F) << text;
        EXPECT_EQ(ToDouble(text + std::string(text.starts_with("0.") ? "e-9" : "9")), 0.0) << text;
    }
    for (const std::string& text : {std::string("1e39"), std::string("-0.5e60"), std::string("+1E+99999999999"), std::string(400, '9'),
                                    "0." + std::string(400, '0') + "1e900"}) {
        EXPECT_EQ(FailureOf([&] { (void)ToSingle(text); }), failure::Overflow) << text;
    }
    EXPECT_EQ(FailureOf([] { (void)ToSingle("1.2.3"); }), failure::TypeMismatch);
    for (const char* text : {"True", " tRUE ", "1", "-1", "0.1"}) {
        EXPECT_TRUE(ToBoolean(text)) << text;
    }
    for (const char* text : {"False", "FALSE", "0", "0.0"}) {
        EXPECT_FALSE(ToBoolean(text)) << text;
    }
    EXPECT_EQ(FailureOf([] { (void)ToBoolean("yes"); }), failure::TypeMismatch);
    EXPECT_EQ(FailureOf([] { (void)ToBoolean(""); }), failure::TypeMismatch);
}

TEST(NumberTextTest, WritesTheShortestTextWithoutAnExponent)
{
    struct Case
    {
        float value;
        const char* shortest;
        const char* twoDecimals;
    };
    for (const Case& c :
         {Case{8, "8", "8.00"}, Case{470.0F / 60.0F, "7.8333335", "7.83"}, Case{12.3F, "12.3", "12.30"}, Case{-0.5F, "-0.5", "-0.50"},
          Case{0, "0", "0.00"}, Case{-0.0F, "0", "0.00"}, Case{-0.004F, "-0.004", "0.00"}, Case{-0.005F, "-0.005", "-0.01"},
          Case{0.005F, "0.005", "0.01"}, Case{1.005F, "1.005", "1.01"}, Case{0.985F, "0.985", "0.99"}, Case{99.995F, "99.995", "100.00"},
          Case{9.999F, "9.999", "10.00"}, Case{1e-7F, "0.0000001", "0.00"}, Case{1e10F, "10000000000", "10000000000.00"},
          Case{16777216.0F, "16777216", "16777216.00"}, Case{1.0F / 60.0F, "0.016666668", "0.02"}, Case{100, "100", "100.00"}}) {
        EXPECT_EQ(SingleText(c.value), c.shortest);
        EXPECT_EQ(TwoDecimals(c.value), c.twoDecimals);
    }
    EXPECT_EQ(DoubleText(0.1), "0.1");
    EXPECT_EQ(BooleanText(true) + BooleanText(false), "TrueFalse");
}

TEST(ValueTest, ConvertsOrSaysWhyNot)
{
    EXPECT_EQ(Value(true).ToInt32(), -1);
    EXPECT_EQ(Value(" 12 ").ToInt16(), 12);
    EXPECT_EQ(Value(DateTime({1900, 1, 1})).ToInt32(), 2);
    EXPECT_EQ(Value(1.5).ToDateTime(), DateTime({1899, 12, 31}, {12, 0, 0}));
    EXPECT_EQ(Value("3/5/2003").ToDateTime(), DateTime({2003, 3, 5}));
    EXPECT_EQ(Value(kMorning).ToText(), "3/5/2003 8:05:09 AM");
    EXPECT_EQ(Value(12.3F).ToText(), "12.3");
    EXPECT_TRUE(Value(kMorning).IsDate());
    EXPECT_TRUE(Value("8:05").IsDate());
    EXPECT_FALSE(Value(5).IsDate());
    EXPECT_FALSE(Value().IsDate());
    EXPECT_EQ(FailureOf([] { (void)Value().ToText(); }), failure::InvalidUseOfNull);
    EXPECT_EQ(FailureOf([] { (void)Value().ToBoolean(); }), failure::InvalidUseOfNull);
    EXPECT_EQ(FailureOf([] { (void)Value("abc").ToDateTime(); }), failure::TypeMismatch);
    EXPECT_EQ(FailureOf([] { (void)Value(40000).ToInt16(); }), failure::Overflow);
    EXPECT_EQ(FailureOf([] { (void)Value(1e300).ToSingle(); }), failure::Overflow);
    EXPECT_EQ(FailureOf([] { (void)Value(1e300).ToDateTime(); }), failure::Overflow);
}

TEST(TextTest, CountsCharactersNotBytes)
{
    EXPECT_EQ(CharacterCount("Zo\xC3\xAB"), 3U);
    EXPECT_EQ(CharacterCount("\xF0\x9F\x98\x80"), 1U);
    EXPECT_EQ(LowerCase("AbZ\xC3\x84"), "abz\xC3\x84");
}

} // namespace
