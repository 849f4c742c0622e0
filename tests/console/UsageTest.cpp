#include "console/Console.h"
#include "console/ConsoleDesktop.h"
#include "console/ConsoleFixture.h"

#include <fstream>

namespace ptk {

namespace {

using UsageTest = ConsoleTest;

TEST_F(UsageTest, RefusesWrongUsageWithStatusTwoAndTouchesNothing)
{
    struct Case
    {
        const char* name;
        std::vector<std::string> words;
    };
    for (const Case& c : {
             Case{"no command", {}},
             Case{"unknown command", {"timecards"}},
             Case{"unknown option", {"check", "--fast"}},
             Case{"word too many", {"check", "now"}},
             Case{"two commands", {"check", "create-database"}},
             Case{"today without a sample", {"create-database", "--today", "3/20/2026"}},
             Case{"today is no date", {"create-database", "--sample", "--today", "soon"}},
             Case{"no employee", {"time-card", "--from", "3/1/2026", "--to", "3/14/2026"}},
             Case{"no end", {"time-card", "--employee", "Ann Lee", "--from", "3/1/2026"}},
             Case{"from is no date", {"time-card", "--employee", "Ann Lee", "--from", "2/30/2026", "--to", "3/14/2026"}},
             Case{"to is a bare number", {"time-card", "--employee", "Ann Lee", "--from", "3/1/2026", "--to", "46000"}},
             Case{"a time is no date", {"time-card", "--employee", "Ann Lee", "--from", "8:00", "--to", "3/14/2026"}},
             Case{"to is empty", {"time-card", "--employee", "Ann Lee", "--from", "3/1/2026", "--to", ""}},
             Case{"employee twice", {"time-card", "--employee", "A", "--employee", "B", "--from", "3/1/2026", "--to", "3/2/2026"}},
             Case{"no report", {"report"}},
             Case{"unknown report", {"report", "payroll"}},
             Case{"dates for employees", {"report", "employees", "--from", "3/1/2026"}},
             Case{"dates for the phone book", {"report", "phonebook", "--to", "3/1/2026"}},
             Case{"employees for the phone book", {"report", "phonebook", "--employee", "Ann Lee"}},
             Case{"report's date is none", {"report", "ytd", "--to", "tomorrow"}},
         }) {
        SCOPED_TRACE(c.name);
        const Answer answer = Run(c.words);
        EXPECT_EQ(answer.status, 2);
        EXPECT_EQ(answer.out, "");
        EXPECT_TRUE(answer.err.starts_with("ptk-console: ")) << answer.err;
    }
    EXPECT_FALSE(std::filesystem::exists(Database()));
    EXPECT_TRUE(std::filesystem::is_empty(Folder() / "reports"));
}

TEST_F(UsageTest, ShowsHelpAndVersion)
{
    const Answer help = Run({"--help"});
    EXPECT_EQ(help.status, 0);
    for (const char* word : {"create-database", "time-card", "report", "check", "--program-folder"}) {
        EXPECT_NE(help.out.find(word), std::string::npos) << word;
    }
    EXPECT_NE(Run({"report", "--help"}).out.find("phonebook"), std::string::npos);

    const Answer version = Run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, "ptk-console 1.0\n");
    EXPECT_EQ(help.err + version.err, "");
}

TEST_F(UsageTest, OutputThatCannotBeWrittenIsAFailure)
{
    std::ofstream full("/dev/full");
    std::ostringstream err;
    EXPECT_EQ(RunConsole({"--version"}, m_clock, full, err), 1);
    EXPECT_EQ(err.str(), "ptk-console: the output could not be written\n");
}

TEST(TerminalTextTest, LetsNoControlCharacterThrough)
{
    struct Case
    {
        const char* text;
        const char* shown;
    };
    for (const Case& c : {Case{"a\r\nb\tc\n", "a\nb\tc\n"}, Case{"\x1b[2Jx\x7f\ry\b", "?[2Jx??y?"},
                          Case{"\xC2\x9B"
                               "1m Jos\xC3\xA9 \xC2\xA0",
                               "?1m Jos\xC3\xA9 \xC2\xA0"},
                          Case{"\x9B"
                               "1m \xE9l\xE9ment \xE2\x82",
                               "?1m \xE9l\xE9ment \xE2?"},
                          Case{"\xE2\x82\xAC \xF0\x9F\x98\x80 \xC3\x9B", "\xE2\x82\xAC \xF0\x9F\x98\x80 \xC3\x9B"}}) {
        EXPECT_EQ(TerminalText(c.text), c.shown);
    }
    std::ostringstream err;
    Complain(err, Failure(602, "PTK", "no employee: \x1b]0;x\x07\r\n"));
    EXPECT_EQ(err.str(), "ptk-console: 602: no employee: ?]0;x?  \n");
}

TEST(ConsoleDesktopTest, WritesItsBoxesAsLinesAndConfirmsNothing)
{
    std::ostringstream out;
    ConsoleDesktop desktop(out);
    EXPECT_EQ(desktop.MessageBox("Delete it?", "Delete", Icon::Question, Buttons::YesNo), Answer::No);
    EXPECT_EQ(desktop.Show("It is gone.", "Done", Icon::Information), Answer::Ok);
    EXPECT_EQ(out.str(), "Delete: Delete it?\nDone: It is gone.\n");
    EXPECT_EQ(desktop.Shell(DesktopWindow(), ShellVerb::Open, "/no/such/guide.doc"), ShellFileNotFound);
}

} // namespace

} // namespace ptk
