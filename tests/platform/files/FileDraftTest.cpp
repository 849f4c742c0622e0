#include "platform/files/FileDraft.h"

#include "support/Failures.h"
#include "support/Files.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sys/wait.h>
#include <vector>

using namespace ptk;

namespace {

class FileDraftTest : public testing::Test
{
protected:
    void TearDown() override { ::umask(022); }

    static void Replace(const std::string& path, const std::string& bytes)
    {
        FileDraft draft(path);
        draft.File().Write(bytes);
        draft.Replace();
    }

    // The names in the reports folder, in order.
    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(reports)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder folder;
    std::string reports = folder.Path() + "/reports/";
    std::string target = reports + "a.txt";
    std::string victim = folder.Path() + "/system/victim";
};

TEST_F(FileDraftTest, IsFreshWhateverWasLaidInItsWay)
{
    struct Case
    {
        const char* name;
        std::function<void()> lay;
        int mode;
    };
    WriteBytes(victim, "of another");
    const auto file = [this](mode_t mode) {
        WriteBytes(target, "old");
        ::chmod(target.c_str(), mode);
    };
    for (const Case& c :
         {Case{"nothing", [] {}, 0600}, Case{"nothing, and a wide umask", [] { ::umask(0); }, 0600},
          Case{"nothing, and a narrow umask", [] { ::umask(0777); }, 0600}, Case{"a file hands down its mode", [&] { file(0640); }, 0640},
          Case{"a link", [&] { std::filesystem::create_symlink(victim, target); }, 0600},
          Case{"a link to nothing", [&] { std::filesystem::create_symlink(reports + "none", target); }, 0600},
          Case{"a second name", [&] { std::filesystem::create_hard_link(victim, target); }, 0600},
          Case{"a stranger's file",
               [&] {
                   file(0666);
                   static_cast<void>(::chown(target.c_str(), 12345, 12345));
               },
               ::geteuid() == 0 ? 0600 : 0666}}) {
        SCOPED_TRACE(c.name);
        c.lay();
        Replace(target, "new");
        ::umask(022);
        EXPECT_EQ(ReadBytes(target), "new");
        EXPECT_EQ(ModeOf(target), c.mode);
        EXPECT_EQ(Names(), std::vector<std::string>{"a.txt"});
        EXPECT_EQ(ReadBytes(victim), "of another");
        std::filesystem::remove(target);
    }
}

TEST_F(FileDraftTest, LeavesNoTraceUnlessItIsPlaced)
{
    WriteBytes(target, "old");
    {
        FileDraft draft(target);
        draft.File().Write("half");
        EXPECT_EQ(ModeOf(draft.Path()), 0600);
    }
    {
        FileDraft draft(target);
        EXPECT_EQ(FailureOf([&] { draft.PlaceNew(); }), failure::PathFileAccess) << "there is a file";
    }
    EXPECT_EQ(ReadBytes(target), "old");
    FileDraft draft(reports + "b.txt");
    draft.PlaceNew();
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "b.txt"}));
}

TEST_F(FileDraftTest, RefusesWhatIsNoFileOrMayNotBeWritten)
{
    struct Case
    {
        const char* name;
        std::string target;
        std::int32_t number;
    };
    const OrdinaryUser user(folder.Path());
    ::mkfifo((reports + "pipe").c_str(), 0600);
    std::filesystem::create_directory(reports + "folder");
    std::filesystem::create_symlink("/dev/full", reports + "device");
    WriteBytes(reports + "guarded", "old");
    ::chmod((reports + "guarded").c_str(), 0400);
    std::filesystem::create_directory(reports + "closed");
    ::chmod((reports + "closed").c_str(), 0500);
    for (const Case& c : {Case{"pipe", "pipe", 75}, Case{"folder", "folder", 75}, Case{"device", "device", 75},
                          Case{"no folder", "none/a", 76}, Case{"a file for a folder", "guarded/a", 76},
                          Case{"write-protected", "guarded", 70}, Case{"folder write-protected", "closed/a", 70}}) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(FailureOf([&] { const FileDraft draft(reports + c.target); }), c.number);
    }
    EXPECT_EQ(Names(), (std::vector<std::string>{"closed", "device", "folder", "guarded", "pipe"}));
}

TEST_F(FileDraftTest, SweepsWhatKilledProgramsLeftAndNothingElse)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const FileDraft draft(target);
        WriteBytes(draft.Path() + "-journal", "of an engine");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    ASSERT_EQ(Names().size(), 2U);
    const std::vector<std::string> others{".a.txt.backup", ".a.txt.other1.draf", ".b.txt.abcdef.draft"};
    for (const std::string& name : others) {
        WriteBytes(reports + name, "of the user");
    }
    {
        const FileDraft first(target);
        const FileDraft second(target);
        EXPECT_GE(ModeOf(first.Path()), 0) << "one that is being worked on stays";
        EXPECT_EQ(Names().size(), others.size() + 2);
    }
    EXPECT_EQ(Names(), others);
}

TEST_F(FileDraftTest, PutsAFileOnlyWhereItChanges)
{
    WriteBytes(target, "old");
    std::filesystem::create_symlink(target, reports + "link");
    const auto inode = [this] {
        struct stat status
        {
        };
        ::stat(target.c_str(), &status);
        return status.st_ino;
    };
    const auto before = inode();
    PutFile(target, "old");
    EXPECT_EQ(inode(), before);
    for (const char* bytes : {"ol", "olde", "", "new"}) {
        PutFile(reports + "link", bytes);
        EXPECT_EQ(ReadBytes(target), bytes);
    }
    EXPECT_TRUE(std::filesystem::is_symlink(reports + "link"));
    {
        const FullDisk full(5);
        EXPECT_EQ(FailureOf([&] { PutFile(target, "longer"); }), failure::DiskFull);
    }
    EXPECT_EQ(ReadBytes(target), "new");
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.txt", "link"}));
}

} // namespace
