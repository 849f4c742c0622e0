// Backups: their names, which are kept, how they are made and put back.
#include "store/backup/Backups.h"
#include "platform/files/DraftsAtEnd.h"
#include "platform/text/Text.h"
#include "store/backup/BackupNames.h"
#include "store/backup/Restore.h"
#include "store/StoreFixture.h"
#include "support/Files.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>

namespace ptk {

namespace {

// Every noon from `from` days to `to` days before Wednesday, 11 March 2026.
std::vector<std::string> Noons(int from, int to)
{
    std::vector<std::string> names;
    for (int day = from; day <= to; ++day) {
        names.push_back(BackupName(ToDateTime("3/11/2026 12:00").AddDays(-day)));
    }
    return names;
}

TEST(BackupNamesTest, AreOfASecondAndNothingElse)
{
    EXPECT_EQ(BackupName(ToDateTime("3/5/2003 17:04:09")), "ptk_11-2003-03-05-170409.mdb");
    EXPECT_EQ(BackupMoment("ptk_11-2003-03-05-170409.mdb"), ToDateTime("3/5/2003 17:04:09"));
    for (const char* name :
         {"ptk_11-2003-02-30-170409.mdb", "ptk_11-2003-03-05-240000.mdb", "ptk_11-2003-03-05-170409.mdx", "", "ptk_11.mdb",
          "ptk_11-2003-03-05-170409-damaged.mdb", "ptk_11-2003-03-05-17040a.mdb", ".ptk_11-2003-03-05-170409.mdb"}) {
        EXPECT_FALSE(BackupMoment(name)) << name;
    }
}

TEST(BackupNamesTest, TheOnesToGoAreThoseThatNoRuleKeeps)
{
    const DateTime newest = ToDateTime("3/11/2026 12:00");
    const auto kept = [&](std::vector<std::string> names) {
        for (const std::string& gone : DispensableBackups(names, newest)) {
            std::erase(names, gone);
        }
        std::string days;
        for (const std::string& name : names) {
            days += (days.empty() ? "" : " ") + (BackupMoment(name) ? FormatDateTime(*BackupMoment(name), "m/d") : name);
        }
        return days;
    };
    // Ten newest and 14 days: to 26 February. Weeks from Sunday: the newest of each is its Saturday, 21 February back to that of the week
    // of 18 January, which is 24 January. Months: the newest of each is its last day.
    EXPECT_EQ(kept(Noons(0, 120)), "3/11 3/10 3/9 3/8 3/7 3/6 3/5 3/4 3/3 3/2 3/1 2/28 2/27 2/26 2/21 2/14 2/7 1/31 1/24 12/31 11/30");
    // 9 to 7 February, that week's and the one before's newest, are among the ten.
    EXPECT_EQ(kept(Noons(30, 45)), "2/9 2/8 2/7 2/6 2/5 2/4 2/3 2/2 2/1 1/31") << "the ten newest, however old";
    EXPECT_EQ(kept(Noons(-3, -1)), "3/14 3/13 3/12") << "dated later";
    const std::vector<std::string> others{"notes.txt", "ptk_11-2000-01-01-000000-damaged.mdb"};
    EXPECT_TRUE(DispensableBackups(others, newest).empty());

    std::vector<std::string> hours;
    hours.reserve(20);
    for (int hour = 0; hour < 20; ++hour) {
        hours.push_back(BackupName(DateTime({2026, 3, 11}, {hour, 0, 0})));
    }
    const auto gone = DispensableBackups(hours, DateTime({2026, 3, 11}, {19, 0, 0}));
    EXPECT_EQ(gone.size(), 10U);
    EXPECT_EQ(gone.front(), "ptk_11-2026-03-11-090000.mdb");
    // 23 months before March 2026 is April 2024.
    EXPECT_EQ(DispensableBackups(std::vector<std::string>{"ptk_11-2024-04-01-000000.mdb", "ptk_11-2024-03-31-000000.mdb"}, newest).size(),
              0U);
    std::vector<std::string> old = Noons(0, 9);
    old.insert(old.end(), {"ptk_11-2024-04-01-000000.mdb", "ptk_11-2024-03-31-000000.mdb"});
    EXPECT_EQ(DispensableBackups(old, newest), std::vector<std::string>{"ptk_11-2024-03-31-000000.mdb"});
}

TEST(BackupNamesTest, NothingGoesByAClockThatRanAhead)
{
    const std::vector<std::string> names = Noons(0, 700);
    const auto goneBy = [&](const char* newest) {
        std::vector<std::string> all = names;
        all.insert(all.begin(), {BackupName(ToDateTime("3/11/2031 8:00")), BackupName(ToDateTime(newest))});
        return DispensableBackups(all, ToDateTime(newest)).size();
    };
    EXPECT_EQ(goneBy("3/11/2031 8:00"), 0U);
    EXPECT_EQ(goneBy("3/11/2031 17:00"), 0U) << "the second of that day";
    EXPECT_NE(goneBy("4/20/2026 12:00"), 0U) << "40 days";
    EXPECT_EQ(goneBy("4/20/2026 12:00:01"), 0U);
}

class BackupsTest : public StoreTest
{
protected:
    std::string Folder() const { return BackupFolder(m_folder.Path()); }
    std::string Backup(const std::string& name) const { return Folder() + '/' + name; }
    std::string Names() const
    {
        std::vector<std::string> names;
        if (std::filesystem::exists(Folder())) {
            for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
                names.push_back(entry.path().filename());
            }
        }
        std::sort(names.begin(), names.end());
        return fmt::format("{}", fmt::join(names, " "));
    }
    std::string RestoreFrom(const std::string& file) const { return Restore({file, Path(), Folder(), m_now, {"desk", "ptk-console"}}); }

    DateTime m_now = ToDateTime("3/5/2003 17:04:09");
};

constexpr const char* kFirst = "ptk_11-2003-03-05-170409.mdb";
constexpr const char* kSecond = "ptk_11-2003-03-05-170410.mdb";

TEST_F(BackupsTest, AreWholeForTheirOwnerAndNamedByTheNextFreeSecond)
{
    Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2003-03-05 08:00:00', 'x'), (40, '2003-03-04 08:00:00', "
        "'y')");
    std::int32_t told = 0;
    EXPECT_EQ(BackUp(Path(), Folder(), m_now, [&](std::int32_t done, std::int32_t all) { return ++told != 0 && done <= all; }),
              Backup(kFirst));
    EXPECT_EQ(BackUp(Path(), Folder(), m_now), Backup(kSecond));
    EXPECT_EQ(Names(), std::string(kFirst) + " " + kSecond);
    struct stat status
    {
    };
    ASSERT_EQ(stat(Backup(kFirst).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(stat(Folder().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);

    WriteBytes(Backup(kSecond), ReadBytes(Backup(kSecond)).substr(0, 20000));
    EXPECT_EQ(BackupsIn(Folder()), (std::vector<std::string>{kSecond, kFirst}));
    const BackupEntry damaged = CheckedBackup(Folder(), kSecond);
    EXPECT_FALSE(damaged.content);
    EXPECT_EQ(damaged.fault, "the database file is damaged");
    const BackupEntry sound = CheckedBackup(Folder(), kFirst);
    EXPECT_EQ(sound.content.value().employees, 1);
    EXPECT_EQ(sound.content->records, 2);
    EXPECT_EQ(sound.content->newestShift, ToDateTime("3/5/2003 8:00"));
    EXPECT_EQ(sound.size, static_cast<std::int64_t>(ReadBytes(Path()).size()));
}

TEST_F(BackupsTest, PruningSparesTheFileThatIsBeingRestored)
{
    const auto backup = [](int second) { return BackupName(DateTime::FromSeconds(ToDateTime("2/1/2003").Seconds() + second)); };
    std::filesystem::create_directory(Folder());
    const std::string newest = BackupName(m_now);
    WriteBytes(Backup(newest), "");
    for (int second = 0; second < 11; ++second) {
        WriteBytes(Backup(backup(second)), "");
    }
    PruneBackups(Folder(), newest, Backup(backup(0))); // ten are kept: that one and the nine newest of eleven
    EXPECT_TRUE(std::filesystem::exists(Backup(backup(0))));
    EXPECT_FALSE(std::filesystem::exists(Backup(backup(1))));
    EXPECT_TRUE(std::filesystem::exists(Backup(backup(2))));
}

TEST_F(BackupsTest, LeaveNothingBehindWhereTheyFail)
{
    RawDatabase other(Path());
    other.Run("BEGIN; SELECT * FROM Employee");
    EXPECT_EQ(FailureOf([&] { BackUp(Path(), Folder(), m_now); }), 5) << "held, even by a reader";
    other.Run("COMMIT");
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(FailureOf([&] { BackUpTo(Path(), Path()); }), failure::PathFileAccess);
    EXPECT_EQ(FailureOf([&] { BackUpTo(Path(), m_folder.Path()); }), failure::PathFileAccess);
    EXPECT_EQ(FailureOf([&] { BackUpTo(Path(), m_folder.Path() + "/none/a.mdb"); }), failure::PathNotFound);
    EXPECT_EQ(FailureOf([&] { CopyBackup(Path(), m_folder.Path() + "/none"); }), failure::PathNotFound);

    Run("CREATE TABLE Fill (x); WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 40) INSERT INTO Fill SELECT "
        "randomblob(100000) FROM n");
    EXPECT_EQ(FailureOf([&] { BackUp(Path(), Folder(), m_now, [](std::int32_t, std::int32_t) { return false; }); }), 9) << "given up";
    EXPECT_TRUE(WIFSIGNALED(InAnotherProcess(
        [&] { BackUp(Path(), Folder(), m_now, [](std::int32_t, std::int32_t) { return kill(getpid(), SIGKILL) != 0; }); })));
    EXPECT_TRUE(WIFSIGNALED(InAnotherProcess([&] {
        RemoveRemovedOnSignalsOnSignals();
        BackUp(Path(), Folder(), m_now, [](std::int32_t, std::int32_t) { return raise(SIGTERM) != 0; });
    })));
    EXPECT_EQ(Names(), "") << "nor what is ended by a signal";
    std::string bytes = ReadBytes(Path());
    bytes.replace(bytes.size() / 2, 4096, std::string(4096, 'x'));
    WriteBytes(Path(), bytes);
    EXPECT_EQ(FailureOf([&] { BackUp(Path(), Folder(), m_now); }), 11);
    EXPECT_EQ(Names(), "") << "not what the killed one left either";
}

TEST_F(BackupsTest, AreRefusedWhereAnIndexDisagreesWithItsTable)
{
    Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2003-03-05 08:00:00', '2003-03-05 16:00:00')");
    const std::string file = BackUp(Path(), Folder(), m_now);
    const auto spoil = [](const std::string& path) { // the first of two times: whichever of table and index lies in front
        std::string bytes = ReadBytes(path);
        bytes.replace(bytes.find("2003-03-05 16:00:00"), 19, "2003-03-05 12:00:00");
        WriteBytes(path, bytes);
    };
    spoil(file);
    EXPECT_EQ(CheckedBackup(Folder(), kFirst).fault, "the database file is damaged");
    EXPECT_EQ(FailureOf([&] { RestoreFrom(file); }), 11);
    EXPECT_EQ(Rows("SELECT EndTime FROM TimeRecord"), "2003-03-05 16:00:00|");
    spoil(Path());
    EXPECT_EQ(FailureOf([&] { BackUp(Path(), Folder(), m_now); }), 11);
}

TEST_F(BackupsTest, ClearWhatKilledOnesLeftAndNothingElse)
{
    const auto draft = [&](const std::string& target) { return Folder() + "/." + target + ".a1b2c3.draft"; };
    BackUp(Path(), Folder(), m_now);
    WriteBytes(draft("ptk_11-2001-01-01-120000.mdb"), "anything");
    WriteBytes(draft("ptk_11-2001-01-01-120000.mdb") + "-journal", "of it");
    WriteBytes(draft("elsewhere.mdb"), ReadBytes(Path()).substr(0, 5000));
    WriteBytes(draft("photos.db"), ReadBytes(Path()).substr(0, 68) + "abcd of another program");
    WriteBytes(draft("thesis.txt"), "somebody's");
    BackUp(Path(), Folder(), m_now);
    EXPECT_EQ(Names(), std::string(".photos.db.a1b2c3.draft .thesis.txt.a1b2c3.draft ") + kFirst + " " + kSecond);
}

TEST_F(BackupsTest, NobodyGetsAtTheDatabaseMeanwhile)
{
    Run("CREATE TABLE Fill (x); WITH n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 40) INSERT INTO Fill SELECT "
        "randomblob(100000) FROM n");
    bool free = false;
    BackUp(Path(), Folder(), m_now, [&](std::int32_t, std::int32_t) {
        free = free || InAnotherProcess([&] {
                           if (RawDatabase(Path()).TryRun("SELECT 1 FROM Employee") != SQLITE_OK) {
                               throw Failure(failure::PermissionDenied);
                           }
                       }) == 0;
        return true;
    });
    EXPECT_FALSE(free);
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Employee"), "1|") << "given up afterwards";
}

TEST_F(BackupsTest, ARestoreKeepsWhatItReplaces)
{
    const std::string file = BackUp(Path(), Folder(), m_now);
    Run("INSERT INTO Company (Name) VALUES ('Later')");
    EXPECT_EQ(RestoreFrom(file), Backup(kSecond));
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM Company"), "0|");
    EXPECT_EQ(Rows("SELECT ChangedBy, Program, Step, TableName, RowID, Action, Before, After FROM _Change"),
              "desk|ptk-console|1|NULL|NULL|restore|NULL|{\"file\":\"" + file + "\"}|");
    EXPECT_EQ(RawDatabase(Backup(kSecond)).Rows("SELECT Name FROM Company"), "Later|");
    EXPECT_EQ(RawDatabase(file).Rows("SELECT COUNT(*) FROM _Change"), "0|") << "the backup itself stays";
    EXPECT_EQ(SystemFiles(), 1);

    for (const auto& [bytes, number] : {std::pair<std::string, int>{ReadBytes(file).substr(0, 20000), 11}, {"no database", 26}, {"", 26}}) {
        WriteBytes(File("bad.mdb"), bytes);
        EXPECT_EQ(FailureOf([&] { RestoreFrom(File("bad.mdb")); }), number);
    }
    EXPECT_EQ(FailureOf([&] { RestoreFrom(File("missing.mdb")); }), 14);
    RawDatabase(File("other.mdb"), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE).Run("CREATE TABLE x (y)");
    EXPECT_EQ(FailureOf([&] { RestoreFrom(File("other.mdb")); }), 26);
    RawDatabase holder(Path());
    holder.Run("BEGIN; SELECT * FROM Employee");
    EXPECT_EQ(FailureOf([&] { RestoreFrom(file); }), 5);
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM _Change"), "1|") << "nothing changed";
}

TEST_F(BackupsTest, ARestoreTakesThePlaceOfASpoiledOrMissingDatabaseButNotItsJournal)
{
    const std::string file = BackUp(Path(), Folder(), m_now);
    const std::string damaged = "ptk_11-2003-03-05-170409-damaged.mdb";
    const std::string spoiled = "SQLite format 3" + std::string(5000, '?');
    WriteBytes(Path(), spoiled);
    WriteBytes(Path() + "-journal", "no journal"); // which the engine removes by itself
    WriteBytes(Path() + "-shm", "of the spoiled one");
    EXPECT_EQ(RestoreFrom(file), Backup(damaged));
    EXPECT_EQ(ReadBytes(Backup(damaged)), spoiled);
    EXPECT_EQ(ReadBytes(Backup(damaged) + "-shm"), "of the spoiled one");
    EXPECT_EQ(SystemFiles(), 1);
    EXPECT_EQ(Rows("PRAGMA integrity_check"), "ok|");

    std::filesystem::remove(Path());
    WriteBytes(Path() + "-journal", "of a removed one");
    EXPECT_EQ(RestoreFrom(file), "");
    EXPECT_EQ(SystemFiles(), 1);
    EXPECT_EQ(Rows("PRAGMA integrity_check"), "ok|");
}

TEST_F(BackupsTest, ACopyInASecondFolderIsKeptByTheSameRule)
{
    const std::string second = m_folder.Path() + "/second";
    std::filesystem::create_directory(second);
    for (const std::string& name : Noons(0, 40)) {
        WriteBytes(std::string(second).append("/").append(name), "old");
    }
    const std::string file = BackUp(Path(), Folder(), ToDateTime("3/11/2026 13:00"));
    CopyBackup(file, second);
    EXPECT_EQ(ReadBytes(second + "/ptk_11-2026-03-11-130000.mdb"), ReadBytes(file));
    // 14 days with one more today, the week of 15 and 8 February, 1 February and 25 and 18 January, the end of January.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(second), std::filesystem::directory_iterator()), 19);
}

} // namespace

} // namespace ptk
