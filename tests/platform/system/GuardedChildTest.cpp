#include "platform/system/GuardedChild.h"

#include "platform/Failure.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace ptk {

namespace {

using std::chrono::steady_clock;

class GuardedChildTest : public testing::Test
{
protected:
    struct Ending
    {
        std::string out;
        std::int64_t errorLines = 0;
        ChildEnd end;
        std::string failure; // what was raised instead
    };

    // A shell that does this.
    Ending Run(const std::string& script, const std::function<void(ChildOrder&)>& change = {})
    {
        WriteBytes(m_folder.Path() + "/input", "from the file");
        const SystemFile input = OpenRegularFile(m_folder.Path() + "/input", O_RDONLY);
        ChildOrder order{"/bin/sh", {"-c", script}, input, {}, {}};
        order.limits.deadline = steady_clock::now() + std::chrono::seconds(10);
        if (change) {
            change(order);
        }
        Ending ending;
        try {
            GuardedChild child(order);
            for (auto portion = child.Read(); !portion.empty(); portion = child.Read()) {
                ending.out += portion;
            }
            ending.end = child.Wait();
            ending.errorLines = child.ErrorLines();
        } catch (const Failure& failure) {
            ending.failure = failure.Description();
        }
        return ending;
    }

    TemporaryFolder m_folder;
};

TEST_F(GuardedChildTest, TellsHowItEnded)
{
    struct Case
    {
        const char* script;
        bool clean;
        int status;
    };
    for (const Case& c :
         {Case{"exit 0", true, 0}, {"exit 3", false, 3}, {"kill -SEGV $$", false, -1}, {"exec >&- 2>&-; exit 4", false, 4}}) {
        const Ending ending = Run(c.script);
        EXPECT_EQ(ending.end.clean, c.clean) << c.script;
        EXPECT_EQ(ending.end.status, c.status) << c.script;
        EXPECT_EQ(ending.failure, "") << c.script;
    }
    EXPECT_EQ(Run("", [](ChildOrder& order) { order.program = "/no/such/program"; }).failure, "the program /no/such/program is missing");
}

TEST_F(GuardedChildTest, HasItsInputAndNothingElse)
{
    ::setenv("PTK_SECRET", "x", 1);
    const int open = ::open("/dev/null", O_RDONLY);                          // not closed on exec
    EXPECT_EQ(Run("cat; ls /proc/self/fd | wc -l").out, "from the file4\n"); // three streams, and the folder that ls reads
    EXPECT_EQ(Run("echo $PTK_SECRET$HOME$LC_ALL").out, "C\n");
    EXPECT_EQ(Run("ulimit -c; ulimit -f; ulimit -t").out, "0\n0\n20\n");
    EXPECT_EQ(Run("echo x > '" + m_folder.Path() + "/grown'").end.clean, false);
    EXPECT_NE(Run("exec 2>&1 3<>/dev/tcp/127.0.0.1/1", [](ChildOrder& order) { order.program = "/bin/bash"; }).out.find("not permitted"),
              std::string::npos);
    ::close(open);
    ::unsetenv("PTK_SECRET");
}

TEST_F(GuardedChildTest, IsEndedBeyondItsLimits)
{
    const auto within = [](int milliseconds) {
        return [milliseconds](ChildOrder& order) { order.limits.deadline = steady_clock::now() + std::chrono::milliseconds(milliseconds); };
    };
    const auto before = steady_clock::now();
    for (const char* script : {"sleep 9", "while :; do :; done", "while :; do echo x >&2; done", "exec >&- 2>&-; sleep 9", "yes"}) {
        EXPECT_EQ(Run(script, within(150)).failure, GuardedChild::Overdue().Description()) << script;
    }
    EXPECT_EQ(Run("yes", [](ChildOrder& order) { order.limits.mostOutput = 100'000; }).failure, GuardedChild::TooMuch().Description());
    EXPECT_EQ(Run("yes", [](ChildOrder& order) { order.goesOn = [] { return false; }; }).failure, GuardedChild::GivenUp().Description());
    const Ending busy = Run("while :; do :; done", [](ChildOrder& order) { order.limits.cpu = std::chrono::seconds(1); });
    EXPECT_FALSE(busy.end.clean);
    EXPECT_LT(steady_clock::now() - before, std::chrono::seconds(9));
}

TEST_F(GuardedChildTest, CountsTheLinesOfWhatItComplains)
{
    const Ending ending = Run("i=0; while [ $i -lt 3000 ]; do echo complaint >&2; i=$((i+1)); done; echo done");
    EXPECT_EQ(ending.out, "done\n");
    EXPECT_EQ(ending.errorLines, 3000);
}

} // namespace

} // namespace ptk
