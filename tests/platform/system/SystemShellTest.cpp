#include "platform/system/SystemShell.h"

#include "platform/files/ProgramFolder.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

using namespace ptk;

namespace {

// Stands in for the programs of the desktop: a folder of scripts at the front of the search path.
class SystemShellTest : public testing::Test
{
protected:
    void SetUp() override
    {
        document = folder.Path() + "/reports/a report; $(touch x).txt";
        WriteBytes(document, "text");
        ::setenv("PATH", (folder.Path() + "/system:/usr/bin:/bin").c_str(), 1);
    }

    void TearDown() override { ::setenv("PATH", before.c_str(), 1); }

    void Script(const std::string& name, const std::string& body)
    {
        const std::string path = folder.Path() + "/system/" + name;
        WriteBytes(path, "#!/bin/sh\n" + body + "\n");
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }

    std::string Heard() const { return ReadBytes(folder.Path() + "/heard"); }

    TemporaryFolder folder;
    std::string document;
    std::string before = std::getenv("PATH");
};

TEST_F(SystemShellTest, HandsTheDocumentOverAsOneArgument)
{
    Script("lp", "for last; do :; done; printf '%s' \"$last\" > " + folder.Path() + "/heard");
    EXPECT_GT(RunSystemShell(ShellVerb::Print, document), ShellSuccess);
    EXPECT_EQ(Heard(), document);
    Script("xdg-open", "printf '%s' \"open $1\" > " + folder.Path() + "/heard");
    EXPECT_GT(RunSystemShell(ShellVerb::Open, document), ShellSuccess);
    for (int i = 0; i < 500 && Heard() != "open " + document; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(Heard(), "open " + document);
}

TEST_F(SystemShellTest, LeavesNoZombieOfTheOpener)
{
    Script("xdg-open", "exit 0");
    ASSERT_GT(RunSystemShell(ShellVerb::Open, document), ShellSuccess);
    const auto hasChild = [] {
        siginfo_t child{};
        return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == 0;
    };
    for (int i = 0; i < 500 && hasChild(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_FALSE(hasChild());
}

TEST_F(SystemShellTest, TellsWhatIsMissing)
{
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, folder.Path() + "/none.txt"), ShellFileNotFound);
    Script("lp", "exit 1");
    Script("xdg-open", "exit 3");
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, document), ShellNoProgram) << "a spooler that refuses";
    EXPECT_EQ(RunSystemShell(ShellVerb::Open, document), ShellNoProgram) << "an opener that knows no program for it";
    ::setenv("PATH", (folder.Path() + "/documentation").c_str(), 1);
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, document), ShellNoProgram);
    EXPECT_EQ(RunSystemShell(ShellVerb::Open, document), ShellNoProgram);
}

TEST_F(SystemShellTest, SaysWhyNothingIsPrintedOrOpened)
{
    struct Case
    {
        ShellVerb verb;
        const char* program;
        const char* body;
        const char* refusal;
    };
    for (const Case& c : {
             Case{ShellVerb::Print, "lp", "echo 'lp: Error - scheduler not responding.' >&2; exit 1", "the print scheduler is not running"},
             Case{ShellVerb::Print, "lp", "echo 'lp: Error - No default destination.' >&2; exit 1", "no printer is set up"},
             Case{ShellVerb::Print, "lpstat", "echo scheduler is not running", "the print scheduler is not running"}, // the lp above
             Case{ShellVerb::Print, "lp", "echo one >&2; echo 'lp: The queue sleeps.' >&2; exit 1", "lp: The queue sleeps."},
             Case{ShellVerb::Print, "lp", "exit 1", "the print scheduler refused it"},
             Case{ShellVerb::Print, "lp", "echo 'a warning' >&2", ""},
             Case{ShellVerb::Open, "xdg-open", "exit 3", "no program is set up for this kind of document"},
             Case{ShellVerb::Open, "xdg-open", "exit 0", ""},
         }) {
        Script("lpstat", "echo scheduler is running");
        Script(c.program, c.body);
        std::string refusal = "of an earlier one";
        EXPECT_EQ(RunSystemShell(c.verb, document, "", refusal) > ShellSuccess, *c.refusal == '\0');
        EXPECT_EQ(refusal, c.refusal) << c.body;
    }
    Script("lp", "printf '%s|' \"$@\" > " + folder.Path() + "/heard");
    std::string refusal;
    EXPECT_GT(RunSystemShell(ShellVerb::Print, document, "Employee Time Card : $(x)", refusal), ShellSuccess);
    EXPECT_EQ(Heard(), "-t|Employee Time Card : $(x)|--|" + document + "|");
    ::setenv("PATH", (folder.Path() + "/documentation").c_str(), 1);
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, document, "", refusal), ShellNoProgram);
    EXPECT_EQ(refusal, "there is no program for printing (lp)");
}

TEST_F(SystemShellTest, DoesNotWaitForASpoolerThatHangsNorForAnOpenerThatStays)
{
    Script("xdg-open", "exec sleep 2");
    EXPECT_GT(RunSystemShell(ShellVerb::Open, document), ShellSuccess);
    Script("lp", "exec sleep 60");
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, document), ShellNoProgram);
    int asked = 0;
    std::string refusal;
    const auto thrice = [&] { return ++asked < 3; };
    EXPECT_EQ(RunSystemShell(ShellVerb::Print, document, "", refusal, thrice), ShellNoProgram) << "given up";
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(refusal, "the print scheduler does not answer");
}

TEST(ProgramFolderTest, TakesTheOptionTheVariableTheExecutablesTheRememberedThenTheUsersOwn)
{
    const TemporaryFolder home;
    ::setenv("PTK_PROGRAM_FOLDER", "/srv/ptk/", 1);
    ::setenv("HOME", home.Path().c_str(), 1);
    ::setenv("XDG_DATA_HOME", "/data", 1);
    ::setenv("XDG_CONFIG_HOME", "relative paths count for nothing", 1);
    const auto found = [](const std::string& option) {
        const ProgramFolder folder = FindProgramFolder(option);
        return (folder.named ? "named " : "own ") + folder.path;
    };
    EXPECT_EQ(found("/opt/ptk//"), "named /opt/ptk");
    EXPECT_EQ(found(""), "named /srv/ptk");
    ::unsetenv("PTK_PROGRAM_FOLDER");
    EXPECT_EQ(found(""), "own /data/ptk-admin");
    RememberProgramFolder("/mnt/books");
    EXPECT_EQ(ReadBytes(home.Path() + "/.config/ptk-admin/program-folder"), "/mnt/books\n");
    EXPECT_EQ(found(""), "own /mnt/books");
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(UserFolder(), home.Path() + "/.local/share/ptk-admin");
    const std::string executable = std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
    std::filesystem::create_directory(executable + "/system");
    WriteBytes(executable + "/system/ptk_11.cfg", "");
    EXPECT_EQ(found(""), "named " + executable);
    std::filesystem::remove_all(executable + "/system");
    EXPECT_EQ(NativePath("/srv\\system\\ptk_11.mdb"), "/srv/system/ptk_11.mdb");
}

} // namespace
