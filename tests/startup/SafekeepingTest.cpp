// Backups at login and exit, restoring, and the second start.
#include "StartupFixture.h"

#include "office/safety/BackupRun.h"
#include "startup/Safekeeping.h"
#include "store/CSystemOptions.h"
#include "store/trail/TrailReader.h"

#include <cstdlib>
#include <filesystem>
#include <fmt/ranges.h>

using namespace ptk;

namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

class SafekeepingTest : public StartupFixture
{
protected:
    void Start()
    {
        program.Start();
        ASSERT_NE(program.Controller(), nullptr);
        ASSERT_NE(windows.main, nullptr);
    }

    std::string Folder() const { return folder.Path() + "/backups"; }
    std::string Backups() const { return fmt::format("{}", fmt::join(BackupsIn(Folder()), " ")); }
    void Spoil() { WriteBytes(databasePath, std::string(40000, 'x')); }
};

const std::string kOfNow = "ptk_11-2003-03-05-080509.mdb"; // by the fixture's clock
const std::string kNext = "ptk_11-2003-03-05-080510.mdb";

TEST_F(SafekeepingTest, OneIsMadeAtTheDaysFirstLoginAndAfterChangesOnly)
{
    Start();
    EXPECT_EQ(Controller().BackUpWhenDue(), "");
    EXPECT_EQ(Controller().BackUpWhenDue(), "");
    EXPECT_EQ(Backups(), kOfNow);
    windows.main->Exit();
    EXPECT_EQ(Backups(), kOfNow) << "nothing had changed";

    Start();
    EXPECT_EQ(Controller().BackUpWhenDue(), "");
    Run("INSERT INTO Company (Name) VALUES ('Acme')");
    windows.main->Exit();
    EXPECT_EQ(Backups(), kNext + " " + kOfNow);
    EXPECT_EQ(ends, (std::vector{EXIT_SUCCESS, EXIT_SUCCESS}));
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(SafekeepingTest, OneIsDueOnEveryDayAnew)
{
    const auto today = DateTime({2003, 3, 5});
    EXPECT_TRUE(BackupIsDue(folder.Path(), today)) << "no folder yet";
    fs::create_directory(Folder());
    for (const auto& [name, due] :
         {std::pair{"notes.txt", true}, {"ptk_11-2003-03-04-235959.mdb", true}, {"ptk_11-2003-03-05-000000.mdb", false}}) {
        WriteBytes(Folder() + '/' + name, "");
        EXPECT_EQ(BackupIsDue(folder.Path(), today), due) << name;
    }
    EXPECT_TRUE(BackupIsDue(folder.Path(), today.AddDays(1)));
    EXPECT_TRUE(BackupIsDue(folder.Path(), today.AddDays(-2))) << "those there were named by a clock that was ahead";
}

TEST_F(SafekeepingTest, AFailureIsToldAndHoldsNothingUp)
{
    Start();
    WriteBytes(Folder(), "in the way");
    const std::string problem = "The database could not be backed up: Path not found: " + Folder();
    EXPECT_EQ(Controller().BackUpWhenDue(), problem);
    EXPECT_EQ(Controller().BackUpNow(), problem);
    EXPECT_TRUE(Boxes().empty()) << "the window's line tells";
    windows.main->Exit();
    EXPECT_EQ(Boxes(), Texts{"Backup Error: " + problem + "."});
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
    const std::string line = "Error: 76 : " + problem + "\r\n";
    EXPECT_EQ(Log(), kLogBegin + line + line + line + kLogEnd);
}

TEST_F(SafekeepingTest, TheUserMayEndOneAndIsNotToldOfThat)
{
    windows.backupGoesOn = false;
    Run("INSERT INTO Company (Name) VALUES (HEX(ZEROBLOB(2000000)))"); // more than is copied at once
    Start();
    EXPECT_EQ(Controller().BackUpNow(), "The backup was given up");
    windows.main->Exit();
    EXPECT_EQ(Backups() + Log(), kLogBegin + kLogEnd);
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(SafekeepingTest, AMissingSecondFolderIsToldOnceUntilItIsThereAgain)
{
    const std::string second = folder.Path() + "/disk";
    Start();
    EXPECT_TRUE(Controller().SecondBackupFolder(second));
    EXPECT_EQ(ReadBytes(configPath),
              "[PTK]\r\nBackupFolder=" + second + "\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n");
    const std::string missing = "The database was backed up, but there is no second copy in " + second + ": Path not found";
    EXPECT_EQ(Controller().BackUpWhenDue(), missing);
    windows.main->Exit();

    Start();
    Run("INSERT INTO Company (Name) VALUES ('Acme')");
    windows.main->Exit();
    EXPECT_TRUE(desktop.boxes.empty()) << "told before";

    Start();
    fs::create_directory(second);
    EXPECT_EQ(Controller().BackUpNow(), "Backed up as ptk_11-2003-03-05-080511.mdb");
    EXPECT_TRUE(fs::exists(second + "/ptk_11-2003-03-05-080511.mdb"));
    fs::remove_all(second);
    Run("INSERT INTO Company (Name) VALUES ('Acme')");
    windows.main->Exit();
    EXPECT_EQ(Boxes(), Texts{"Backup Error: " + missing + "."}) << "news again";

    Start();
    EXPECT_EQ(Controller().SecondFolderRefusal(second), "");
    EXPECT_EQ(Controller().SecondFolderRefusal(folder.Path() + "/system/../backups"),
              "The second folder must be another than the one of the backups themselves.");
    EXPECT_TRUE(Controller().SecondBackupFolder(Folder())); // as somebody may have written it there
    EXPECT_EQ(Controller().BackUpNow(),
              "The database was backed up, but there is no second copy in " + Folder() + ": it is the folder of the backups themselves");
    EXPECT_TRUE(Controller().SecondBackupFolder("") && ReadBytes(configPath).find("Backup") == std::string::npos);
}

TEST_F(SafekeepingTest, RestoringReadsEverythingAgain)
{
    Start();
    EXPECT_EQ(Controller().BackUpNow(), "Backed up as " + kOfNow);
    Run("UPDATE _System SET period_length = 7");
    windows.restored = {"none.mdb", kOfNow};
    const auto before = Controller().EmployeeList();
    EXPECT_EQ(Controller().Restore(), "Restored from " + kOfNow);
    EXPECT_EQ(
        Boxes(),
        Texts{"Restore Error: The database could not be restored and is what it was: the database file is missing or cannot be opened: " +
              Folder() + "/none.mdb."});
    EXPECT_EQ(Controller().SystemOptions()->PeriodLength(), 14);
    EXPECT_EQ(StoredPeriodLength(), 14);
    EXPECT_EQ(Backups(), kNext + " " + kOfNow) << "the former one is kept";
    const auto trail = ReadTrail(std::make_shared<CJetDB>(folder.Path()), {});
    EXPECT_EQ(trail.front().action + " " + trail.front().by, "restore Ann Lee");
    EXPECT_EQ(Controller().Restore(), "") << "nothing chosen";
}

TEST_F(SafekeepingTest, ASpoiledDatabaseCanBeRestoredAtTheStart)
{
    Start();
    Run("UPDATE _System SET period_length = 7");
    Controller().SystemOptions()->PeriodLength(7);
    windows.main->Exit();
    ASSERT_EQ(Backups(), kOfNow);
    Spoil();
    windows.login = nullptr;
    windows.restored = {kOfNow};
    Start();
    EXPECT_EQ(Boxes(), Texts{"Database Open Error: The database cannot be opened because it is missing or corrupt."});
    ASSERT_NE(windows.login, nullptr);
    EXPECT_EQ(Controller().SystemOptions()->PeriodLength(), 7);
    EXPECT_TRUE(fs::exists(Folder() + "/ptk_11-2003-03-05-080509-damaged.mdb"));
    windows.main->Exit();

    Spoil();
    windows.login = nullptr;
    program.Start();
    EXPECT_EQ(windows.login, nullptr) << "nothing was chosen";
    EXPECT_EQ(Controller().ControllerWindow(), nullptr);
}

TEST_F(SafekeepingTest, NothingTakesThePlaceOfAServersDatabase)
{
    Start();
    EXPECT_EQ(Controller().RestoreRefusal(), "");
    EXPECT_EQ(Controller().BackUpWhenDue(), "");
    EXPECT_FALSE(Safekeeping::CanReplace({"postgresql://nowhere.invalid/ptk", folder.Path(), "", DateTime()}));
}

TEST_F(SafekeepingTest, ASecondStartSaysSoAndTouchesNothing)
{
    Start();
    std::vector<int> secondEnds;
    AdminMain second(folder.Path(), desktop, clock, windows, [&](int status) { secondEnds.push_back(status); });
    const std::string log = Log();
    second.Start();
    EXPECT_EQ(secondEnds, std::vector{EXIT_SUCCESS});
    EXPECT_EQ(second.Controller(), nullptr);
    EXPECT_EQ(Boxes(), Texts{"PTK - Administrator: The program is already open on this program folder."});
    EXPECT_EQ(Log(), log);
    windows.main->Exit();
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
}

} // namespace
