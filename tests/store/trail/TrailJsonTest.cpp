// What stands in the edit trail as JSON, whoever wrote it.
#include "store/trail/TrailJson.h"

#include <gtest/gtest.h>

namespace ptk {

namespace {

std::string Told(std::string_view json)
{
    TrailRow row{{"left over", TrailValue::Kind::Text, "from the row before"}, {"another", TrailValue::Kind::Number, "1"}};
    const bool isObject = ParseTrailRow(json, row);
    std::string text;
    for (const TrailValue& value : row) {
        text += value.column + "NnTB"[static_cast<std::size_t>(value.kind)] + value.text + ' ';
    }
    return isObject ? text : "none";
}

// N: null, n: a number, T: text, B: bytes.
TEST(TrailJson, EveryKindOfValueAndNothingElse)
{
    struct Case
    {
        const char* json;
        const char* told;
    };
    for (const Case& c : {
             Case{R"({"EmployeeID":40,"PayRate":12.300000190734863,"ShiftDate":null,"LastName":"Lee"})",
                  "EmployeeIDn40 PayRaten12.300000190734863 ShiftDateN LastNameTLee "},
             Case{R"( { "a" : -0.5e-3 , "b" : true , "c":false,"d":[1,{"x":[]}],"e":{} } )", "an-0.5e-3 bn1 cn0 dB eB "},
             Case{R"({"a":{"blob":"00FF"},"b":{"blob":7,"x":{"blob":"01"}}})", "aB00FF bB "},
             Case{R"({"a":"O'Neil \"\u03a9\" \\ \/ \b\f\n\r\t"})", "aTO'Neil \"\xCE\xA9\" \\ / \b\f\n\r\t "},
             Case{R"({"\u674E":"\ud83d\ude00 \ud83d \udE00x"})", "\xE6\x9D\x8ET\xF0\x9F\x98\x80 \xEF\xBF\xBD \xEF\xBF\xBDx "},
             Case{R"({"a":"\ud83d\u0041\ud83d\ue000"})", "aT\xEF\xBF\xBD"
                                                         "A\xEF\xBF\xBD\xEE\x80\x80 "},
             Case{"{}", ""},
             Case{"", "none"},
             Case{"no JSON", "none"},
             Case{"[1]", "none"},
             Case{"\"a\"", "none"},
             Case{R"({"a":1)", "none"},
             Case{R"({"a":1}})", "none"},
             Case{R"({"a":1,})", "none"},
             Case{R"({"a" 1})", "none"},
             Case{R"({a:1})", "none"},
             Case{R"({"a":"x})", "none"},
             Case{R"({"a":"\)", "none"},
             Case{R"({"a":"\x"})", "none"},
             Case{R"({"a":"\u12G4"})", "none"},
             Case{R"({"a":01})", "none"},
             Case{R"({"a":1.})", "none"},
             Case{R"({"a":-})", "none"},
             Case{R"({"a":1e})", "none"},
             Case{R"({"a":nul})", "none"},
         }) {
        EXPECT_EQ(Told(c.json), c.told) << c.json;
    }
    std::string deep = R"({"a":)" + std::string(100'000, '[');
    EXPECT_EQ(Told(deep), "none") << "as deep as somebody likes";
    EXPECT_EQ(Told(R"({"a":"x\u0000y"})"), std::string("aTx\0y ", 6));
}

} // namespace

} // namespace ptk
