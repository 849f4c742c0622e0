#include "platform/text/DataText.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

TEST(DataTextTest, KeepsEveryTextValidInItsFile)
{
    struct Case
    {
        const char* name;
        std::string text;
        const char* json;
        const char* csv;
    };
    for (const Case& c : {
             Case{"plain", "Ann Lee", "\"Ann Lee\"", "Ann Lee"},
             Case{"nothing", "", "\"\"", ""},
             Case{"quotes and backslashes", "a\"b\\c", R"("a\"b\\c")", "\"a\"\"b\\c\""},
             Case{"a comma", "Lee, Ann", "\"Lee, Ann\"", "\"Lee, Ann\""},
             Case{"a line end", "a\r\nb", R"("a\u000d\u000ab")", "\"a\r\nb\""},
             Case{"controls", std::string("\x1B[2J\0\x7F", 6), R"("\u001b[2J\u0000\u007f")", nullptr},
             Case{"controls of two bytes", "\xC2\x80\xC2\x9F\xC2\xA0", "\"\\u0080\\u009f\xC2\xA0\"", nullptr},
             Case{"two to four bytes", "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80", "\"\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80\"",
                  "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80"},
             Case{"a stray byte", "a\xFF", "\"a\xEF\xBF\xBD\"", "a\xEF\xBF\xBD"},
             Case{"cut short", "\xE4\xB8", "\"\xEF\xBF\xBD\xEF\xBF\xBD\"", "\xEF\xBF\xBD\xEF\xBF\xBD"},
             Case{"half a pair", "\xED\xA0\x80", "\"\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\"", nullptr},
             Case{"a formula", "=1+1", "\"=1+1\"", "'=1+1"},
             Case{"a formula with a comma", "@A1,2", "\"@A1,2\"", "\"'@A1,2\""},
             Case{"a minus inside", "a-b", "\"a-b\"", "a-b"},
         }) {
        EXPECT_EQ(JsonText(c.text), c.json) << c.name;
        if (c.csv != nullptr) {
            EXPECT_EQ(CsvText(c.text), c.csv) << c.name;
        }
    }
}

} // namespace

} // namespace ptk
