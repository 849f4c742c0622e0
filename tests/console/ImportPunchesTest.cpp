#include "console/ConsoleFixture.h"

namespace ptk {

namespace {

class ImportPunchesTest : public ConsoleTest
{
protected:
    ImportPunchesTest() { static_cast<void>(Run({"create-database", "--sample"})); }

    std::string File() const { return (Folder() / "punches.csv").string(); }

    Answer Import(std::vector<std::string> words)
    {
        words.insert(words.begin(), {"import-punches", File()});
        return Run(words);
    }
};

TEST_F(ImportPunchesTest, EndsWithTheStatusThatTellsWhatBecameOfTheLines)
{
    EXPECT_EQ(Import({}).err, "ptk-console: 53: " + File() + ": File not found\n");
    WriteBytes(File(), "Name,Start,End\nAnn Lee,2020-03-05 08:00,2020-03-05 17:00\nNobody,2020-03-05 08:00,\n");
    const Answer refused = Import({});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "Lines: 2, stored 1, there already 0, refused 1\nLine 3: Name: nobody has \"Nobody\"\n");
    EXPECT_EQ(refused.err, "ptk-console: nothing was stored, since lines are refused (--partly stores the others)\n");
    EXPECT_EQ(Import({"--dry-run", "--partly"}).status, 3);
    EXPECT_EQ(Import({"--partly"}).out, refused.out);
    EXPECT_EQ(Import({"--partly"}).out, "Lines: 2, stored 0, there already 1, refused 1\nLine 3: Name: nobody has \"Nobody\"\n");
    WriteBytes(File(), "Name,Start,End\nNobody,2020-03-05 08:00,\n");
    EXPECT_EQ(Import({"--partly"}).err, "ptk-console: nothing was stored, since every line is refused\n");
    WriteBytes(File(), "Name,Start,End\n");
    EXPECT_EQ(Import({}).status, 0);
    for (const char* columns : {"Start", "=Start", "Start=Begin", "Start=Start,", ""}) {
        EXPECT_EQ(Import({"--columns", columns}).status, 2) << columns;
    }
    EXPECT_EQ(Import({"--columns", "Begin=Start"}).err, "ptk-console: " + File() + ": the file has no column begin\n");
}

TEST_F(ImportPunchesTest, OwnTimeCardsGoOutAndInAgainWithoutADifference)
{
    WriteBytes(File(), Run({"report", "timecard", "--from", "3/1/2026", "--to", "3/14/2026", "--format", "csv"}).out);
    const Answer answer = Import({"--partly"});
    EXPECT_NE(answer.out.find("stored 0, "), std::string::npos) << answer.out;
}

} // namespace

} // namespace ptk
