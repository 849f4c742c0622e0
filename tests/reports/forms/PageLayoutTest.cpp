// Where pages break and what stands where on them, as tables of cases: nothing is drawn.
#include "reports/forms/PageLayout.h"

#include "reports/forms/ReportDocument.h"

#include <gtest/gtest.h>

#include <sstream>

namespace ptk {

namespace {

const DateTime kPrinted(CalendarDate{2003, 3, 20}, TimeOfDay{9, 30, 0});
constexpr Paper kSmall{40 * 6 + 108, 20 * 12 + 108}; // 40 columns, 20 rows: 3 to 17 lie between the head and the foot

// A title and a rule, then each word a group: "a4" has the lines a1 to a4, behind "-" an empty one follows; "f" stands for the foot, "c"
// for a group that goes on under the heading.
ReportDocument Made(const std::string& groups)
{
    ReportDocument document{"Title"};
    document.heading = "H";
    document.BeginGroup();
    document.Add("Title");
    document.AddRule();
    std::istringstream words(groups);
    for (std::string word; words >> word;) {
        document.BeginGroup(word.back() == 'f');
        document.groups.back().underHeading = word.back() == 'c';
        for (int i = 1; i <= std::stoi(word.substr(1)); ++i) {
            document.Add(word[0] + std::to_string(i));
        }
        if (word.back() == '-') {
            document.Add("");
        }
    }
    return document;
}

std::string TextOf(const PlacedLine& line)
{
    std::string text = line.style == LineStyle::Rule ? "---" : line.style == LineStyle::Bold ? "*" : "";
    for (const TextPiece& piece : line.pieces) {
        text += std::to_string(piece.column) + "[" + piece.text + "]";
    }
    return std::to_string(line.row) + ":" + text;
}

// The first and the last line between head and foot of each page.
std::string EdgesOf(const std::vector<Page>& pages)
{
    std::string text;
    for (const Page& page : pages) {
        text += text.empty() ? "" : " | ";
        text += page.size() < 4 ? "nothing" : TextOf(page[2]) + " " + TextOf(page[page.size() - 2]);
    }
    return text;
}

TEST(PageLayoutTest, BreaksPagesBetweenWhatBelongsTogether)
{
    struct Case
    {
        const char* groups;
        const char* pages;
    };
    for (const Case& c : {
             Case{"", "nothing"},
             Case{"a15", "3:0[a1] 17:0[a15]"},
             Case{"a8 b7", "3:0[a1] 17:0[b7]"},
             Case{"a8 b8", "3:0[a1] 10:0[a8] | 3:0[b1] 10:0[b8]"},
             Case{"a15- b1-", "3:0[a1] 17:0[a15] | 3:0[b1] 3:0[b1]"}, // an empty line needs no room and begins no page
             Case{"a14- b1", "3:0[a1] 16:0[a14] | 3:0[b1] 3:0[b1]"},
             Case{"b3 a20 c3", "3:0[b1] 17:0[a12] | 3:0[a13] 13:0[c3]"}, // no page could hold it: it begins where it stands
             Case{"a13 b1c c1c d1c e3c", "3:0[a1] 17:0[c1] | 3:0[H] 8:0[e3]"},
             Case{"a14 b3c", "3:0[a1] 16:0[a14] | 3:0[H] 7:0[b3]"}, // a total goes with the last shift
             Case{"a4 f3f", "3:0[a1] 17:0[f3]"},
             Case{"a6 b1c c1c d1c e5c f7f", "3:0[a1] 11:0[d1] | 3:0[H] 17:0[f7]"}, // and with what is signed below it
             Case{"a14 f3f", "3:0[a1] 16:0[a14] | 15:0[f1] 17:0[f3]"},             // unless no page could hold both
             Case{"a6 b1c c12c f2f", "3:0[a1] 9:0[b1] | 3:0[H] 16:0[c12] | 16:0[f1] 17:0[f2]"},
         }) {
        EXPECT_EQ(EdgesOf(LayOut(Made(c.groups), kSmall, kPrinted)), c.pages) << c.groups;
    }
}

TEST(PageLayoutTest, EachPageHasItsHeadAndItsFoot)
{
    ReportDocument document = Made("a8 b8");
    document.title = "Time Card : Ann Featherstonehaugh\n : 1/1/2003 - 1/15/2003";
    document.lines[0].text = document.title;
    document.groups[0].lines = 3;
    const auto pages = LayOut(document, kSmall, kPrinted);
    ASSERT_EQ(pages.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(TextOf(pages[i][0]), "0:*0[Time Card : Ann Featherstonehaugh :]") << "the days are below";
        EXPECT_EQ(TextOf(pages[i][2]), "2:---");
        EXPECT_EQ(TextOf(pages[i][3]), i == 0 ? "4:0[a1]" : "4:0[b1]");
        EXPECT_EQ(TextOf(pages[i].back()), "19:0[Printed 3/20/2003]29[Page " + std::to_string(i + 1) + " of 2]");
    }
}

TEST(PageLayoutTest, PiecesKeepTheirColumns)
{
    struct Case
    {
        const char* line;
        const char* pieces; // lines apart by "/"
    };

    for (const Case& c : {
             Case{"", ""},
             Case{"   ", ""},
             Case{"Ann Lee", "0[Ann Lee]"},
             Case{"\tEnd\t\t", "8[End]"},
             Case{"1234567\t1234567\t1", "0[1234567]8[1234567]16[1]"},
             Case{"12345678\t1", "0[12345678]16[1]"},
             Case{"Lee       Zorn", "0[Lee]10[Zorn]"},
             Case{"\xE5\xBC\xA0\xE4\xBC\x9F        Zorn", "0[\xE5\xBC\xA0\xE4\xBC\x9F]10[Zorn]"},
             Case{"\xE5\xBC\xA0\xE4\xBC\x9F\xE5\xBC\xA0\t1", "0[\xE5\xBC\xA0\xE4\xBC\x9F\xE5\xBC\xA0]8[1]"},
             Case{"\xE5\xBC\xA0\xE4\xBC\x9F\xE5\xBC\xA0\xE4\xBC\x9F\t1", "0[\xE5\xBC\xA0\xE4\xBC\x9F\xE5\xBC\xA0\xE4\xBC\x9F]16[1]"},
             Case{"Jose\xCC\x81     Zorn", "0[Jose\xCC\x81]10[Zorn]"}, // the accent is a character of its own and takes no room
             Case{"a\x01\xFF\xC2\x9B"
                  "b",
                  "0[a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"
                  "b]"},
             Case{"12 Oak Street, third door", "0[12 Oak Street, third]/0[door]"},
             Case{"12 Oak Street, third door   left", "0[12 Oak Street, third]/0[door]7[left]"},
             Case{"Name:\t\tFeatherstone", "0[Name:]/8[Featherstone]"},
             Case{"\t12 Oak Street, Shelbyville", "8[12 Oak]/8[Street,]/8[Shelbyville]"},
             Case{"1234567890123456789012345678901234567890123", "0[12345678901234567890]/0[12345678901234567890]/0[123]"},
         }) {
        std::string text;
        for (const auto& line : PiecesOf(c.line, 20)) {
            text += text.empty() ? "" : "/";
            const std::string placed = TextOf({0, LineStyle::Plain, line});
            text += placed.substr(2);
        }
        EXPECT_EQ(text, c.pieces) << c.line;
    }
    const auto line = PiecesOf("Lee       Zorn", 20).front();
    EXPECT_EQ(line[0].room, 10U);
    EXPECT_EQ(line[1].room, 10U);
    EXPECT_EQ(WidthOf("\xE5\xBC\xA0\xE4\xBC\x9F a"), 6U);
}

TEST(PageLayoutTest, BothPapersHoldARuleOf72AndWhatTabsAddToIt)
{
    EXPECT_EQ(PaperOf(PaperSize::Letter).Columns(), 84U);
    EXPECT_EQ(PaperOf(PaperSize::Letter).Rows(), 57U);
    EXPECT_EQ(PaperOf(PaperSize::A4).Columns(), 81U);
    EXPECT_EQ(PaperOf(PaperSize::A4).Rows(), 61U);
    EXPECT_EQ(PaperFor(84, PaperSize::Letter).Columns(), 84U);
    EXPECT_EQ(PaperFor(105, PaperSize::Letter).Rows(), 71U) << "684 points of 9.6 each";
    EXPECT_EQ(PaperFor(500, PaperSize::Letter).characterWidth, 4.0) << "smaller is not read";
}

TEST(PageLayoutTest, ATitleThatOnlyLooksLikeOneStaysAndAnyLineEndIsOne)
{
    const auto pageOf = [](const std::vector<std::string>& lines) {
        ReportDocument document{"Title"};
        document.BeginGroup();
        for (const std::string& line : lines) {
            document.Add(line);
        }
        std::string text;
        const std::vector<Page> pages = LayOut(document, kSmall, kPrinted);
        for (const PlacedLine& line : pages.front()) {
            text += line.row < 18 ? TextOf(line) + ' ' : "";
        }
        return text;
    };
    EXPECT_EQ(pageOf({"Title"}), "0:*0[Title] 1:--- 3:0[Title] ") << "nothing behind it";
    EXPECT_EQ(pageOf({"Title", "a"}), "0:*0[Title] 1:--- 3:0[Title] 4:0[a] ") << "no rule behind it";
    EXPECT_EQ(pageOf({"a\nb\r\nc"}), "0:*0[Title] 1:--- 3:0[a] 4:0[b] 5:0[c] ");
    EXPECT_EQ(pageOf({"a\n\nb"}), "0:*0[Title] 1:--- 3:0[a] 5:0[b] ") << "an empty line";
}

} // namespace

} // namespace ptk
