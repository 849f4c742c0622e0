#include "shell/CDataValidator.h"
#include "shell/CDocLauncher.h"
#include "support/RecordingDesktop.h"

#include <gtest/gtest.h>

#include <string>

using namespace ptk;

namespace {

TEST(CDataValidatorTest, ChecksCharactersAndValues)
{
    struct Case
    {
        std::string text;
        bool integer, single, dateTime;
    };
    const CDataValidator validator;
    for (const Case& c : {Case{"", true, false, false},
                          Case{"14", true, true, false},
                          Case{"12a", false, false, false},
                          Case{"99999999", true, true, false},
                          Case{"-5", false, false, false},
                          Case{"+5", false, false, false},
                          Case{" 5", false, false, false},
                          Case{"5 ", false, false, false},
                          Case{"12.5", false, true, false},
                          Case{"1.2.3", false, false, false},
                          Case{".", false, false, false},
                          Case{".5", false, true, false},
                          Case{"5.", false, true, false},
                          Case{"1e5", false, false, false},
                          Case{"1,000", false, false, false},
                          Case{std::string(50, '9'), true, false, false},
                          Case{"\xC2\xB2", false, false, false},
                          Case{std::string(1, '\0'), false, false, false},
                          Case{"3/5/2003", false, false, true},
                          Case{"8:05 AM", false, false, true},
                          Case{"3/5/2003 17:00:00", false, false, true},
                          Case{"2/30/2003", false, false, false},
                          Case{"soon", false, false, false}}) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(validator.CheckIntegerValues(c.text), c.integer);
        EXPECT_EQ(validator.CheckSingleValues(c.text), c.single);
        EXPECT_EQ(validator.CheckDateTimeValues(c.text), c.dateTime);
    }
}

TEST(CDocLauncherTest, TurnsTheShellsCodesIntoAnswers)
{
    struct Case
    {
        std::int32_t shellCode;
        bool answer;
        std::int32_t errorNumber;
    };
    for (const Case& c :
         {Case{33, true, 0}, Case{42, true, 0}, Case{32, false, 0}, Case{31, false, 0}, Case{2, false, 902}, Case{0, false, 0}}) {
        SCOPED_TRACE(c.shellCode);
        RecordingDesktop desktop;
        desktop.shellCodes = {c.shellCode, c.shellCode};
        const DesktopWindow parent;
        CDocLauncher launcher(desktop);
        EXPECT_EQ(launcher.DisplayDocument(&parent, R"(/app\docs\guide.doc)"), c.answer);
        EXPECT_EQ(launcher.ErrorNumber(), c.errorNumber);
        EXPECT_EQ(launcher.PrintDocument(&parent, "/app/report.txt"), c.answer);
        ASSERT_EQ(desktop.requests.size(), 2U);
        EXPECT_EQ(desktop.requests[0].verb, ShellVerb::Open);
        EXPECT_EQ(desktop.requests[0].path, "/app/docs/guide.doc");
        EXPECT_EQ(desktop.requests[1].verb, ShellVerb::Print);
        EXPECT_EQ(desktop.requests[1].path, "/app/report.txt");
    }
}

TEST(CDocLauncherTest, WantsAParentAndANameAndKeepsTheLastError)
{
    RecordingDesktop desktop;
    desktop.shellCodes = {31, 33};
    const DesktopWindow parent;
    CDocLauncher launcher(desktop);
    EXPECT_EQ(launcher.FileName("report.txt"), "") << "a read that only sets";
    EXPECT_FALSE(launcher.PrintDocument(nullptr, ""));
    EXPECT_EQ(launcher.ErrorNumber(), 911);
    EXPECT_FALSE(launcher.DisplayDocument(&parent, ""));
    EXPECT_EQ(launcher.ErrorNumber(), 901);
    EXPECT_TRUE(desktop.requests.empty());
    EXPECT_FALSE(launcher.PrintDocument(&parent, "a.xyz"));
    EXPECT_EQ(launcher.ErrorNumber(), 901);
    EXPECT_TRUE(launcher.PrintDocument(&parent, "a.txt"));
    EXPECT_EQ(launcher.ErrorNumber(), 901);
}

TEST(CDocLauncherTest, AFailureOfTheDesktopIsARefusal)
{
    class FailingDesktop final : public RecordingDesktop
    {
    public:
        std::int32_t Shell(const DesktopWindow&, ShellVerb, const std::string&) override { throw Failure(failure::OutOfMemory); }
    };
    FailingDesktop desktop;
    const DesktopWindow parent;
    EXPECT_FALSE(CDocLauncher(desktop).DisplayDocument(&parent, "a.txt"));
}

} // namespace
