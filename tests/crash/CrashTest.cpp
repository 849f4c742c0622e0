// A save, an import, a backup, a restore and the writing of the configuration, killed or out of room at every call that changes something
// on the disk: what is there afterwards is the old or the new, never an empty or a mixed one, and the next try finds nothing in its way.
#include "crash/WriteCalls.h"
#include "office/import/Import.h"
#include "office/safety/BackupRun.h"
#include "platform/Failure.h"
#include "platform/files/ProgramFolder.h"
#include "shell/CFileAdaptor.h"
#include "store/CJetDB.h"
#include "store/RawDatabase.h"
#include "store/whole/DatabaseChecker.h"
#include "store/whole/DatabaseCreator.h"
#include "support/EarlierDatabase.h"
#include "support/Files.h"
#include "support/OldDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>

namespace ptk {

namespace {

namespace fs = std::filesystem;

constexpr int kStepOfLongOnes = 5;
constexpr int kMostCalls = 2000; // no operation makes so many
constexpr int kDone = 0;
constexpr int kRefused = 1;
constexpr int kUntroubled = 2;

class CrashTest : public testing::TestWithParam<Misfortune>
{
protected:
    CrashTest()
    {
        WriteBytes(m_configuration, m_old);
        CreateDatabase(m_database);
        RawDatabase raw(m_database);
        raw.Run("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (40, '2003-03-05 08:00:00', '2003-03-05 17:00:00');"
                "DELETE FROM _Change");
        m_bytes = ReadBytes(m_database);
    }

    // The operation, in a process of its own, with the misfortune at one call after the other until it comes through without meeting it;
    // `look` sees what each left, and whether it was answered as done.
    // `step`: of long operations only every so many calls.
    void AtEveryCall(const std::function<bool()>& operation, const std::function<void(bool done)>& look, int step = 1)
    {
        for (int call = 1; call < kMostCalls; call += step) {
            SCOPED_TRACE(call);
            const int status = Run(operation, call);
            const int answer = WIFEXITED(status) ? WEXITSTATUS(status) : kRefused;
            ASSERT_TRUE(WIFEXITED(status) || WTERMSIG(status) == SIGKILL) << status;
            look(answer != kRefused);
            if (answer == kUntroubled) {
                EXPECT_GT(call, 3) << "the calls are not seen";
                return;
            }
            if (HasFailure()) {
                return;
            }
            PutBack();
        }
        FAIL() << "it never comes through";
    }

    std::string Rows(const std::string& sql) const { return RawDatabase(m_database).Rows(sql); }

    BackupOrder Order() const { return {m_database, m_folder.Path(), "", DateTime({2003, 3, 5}, {17, 4, 9})}; }
    std::string Backups() const { return BackupFolder(m_folder.Path()); }

    // All of them sound; drafts of killed programs are gone with the next one.
    void ExpectSoundBackups(std::size_t least, std::size_t most) const
    {
        const auto names = BackupsIn(Backups());
        EXPECT_TRUE(least <= names.size() && names.size() <= most) << names.size();
        for (const std::string& name : names) {
            EXPECT_TRUE(CheckedBackup(Backups(), name).content) << name;
        }
    }

    TemporaryFolder m_folder;
    std::string m_database = m_folder.Path() + "/system/ptk_11.mdb";
    std::string m_configuration = m_folder.Path() + "/system/ptk_11.cfg";
    std::string m_old = "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=True\r\n";
    std::string m_bytes; // of the database as it was

private:
    static int Run(const std::function<bool()>& operation, int call)
    {
        const pid_t child = fork();
        if (child == 0) {
            MeetMisfortune(GetParam(), call);
            bool done = false;
            try {
                done = operation();
            } catch (const Failure&) {
                done = false;
            }
            _exit(!MisfortuneMet() ? kUntroubled : (done ? kDone : kRefused));
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    void PutBack()
    {
        fs::remove(m_database + "-journal");
        WriteBytes(m_database, m_bytes);
        WriteBytes(m_configuration, m_old);
        fs::remove_all(Backups());
    }
};

TEST_P(CrashTest, ASavedRecordIsThereWholeWithItsTrailOrNotAtAll)
{
    const auto save = [&] {
        CJetDB database(m_folder.Path());
        database.DatabaseName(m_database);
        database.StoredBy({"Ann Lee", "ptk-admin"});
        return database.ExecuteAction("UPDATE TimeRecord SET EndTime = #2003-03-05 18:00:00# WHERE TimeRecordID = 1");
    };
    AtEveryCall(save, [&](bool done) {
        const std::string rows = Rows("SELECT EndTime FROM TimeRecord; SELECT COUNT(*) FROM _Change; SELECT COUNT(*) FROM _Session WHERE "
                                      "user IS NOT NULL; PRAGMA integrity_check");
        const std::string old = "2003-03-05 17:00:00|0|0|ok|";
        const std::string saved = "2003-03-05 18:00:00|1|0|ok|";
        EXPECT_TRUE(rows == saved || (!done && rows == old)) << rows;
    });
}

// With the backup that the change is made after.
TEST_P(CrashTest, AFileOfAnEarlierVersionIsTheOldOneOrUpToDateWithTheChange)
{
    RawDatabase(m_database).Run(kMakeFirstStructure);
    m_bytes = ReadBytes(m_database);
    const auto save = [&] {
        CJetDB database(m_folder.Path());
        database.DatabaseName(m_database);
        database.StoredBy({"Ann Lee", "ptk-admin"});
        return database.ExecuteAction("UPDATE TimeRecord SET EndTime = #2003-03-05 18:00:00# WHERE TimeRecordID = 1");
    };
    AtEveryCall(
        save,
        [&](bool done) {
            const std::string rows =
                Rows("SELECT EndTime FROM TimeRecord; SELECT COUNT(*) FROM _Change; SELECT COUNT(*) FROM sqlite_master WHERE "
                     "name IN ('_Payday', '_Structure', '_PaydayDelete'); SELECT COUNT(*) FROM "
                     "pragma_table_info('_Change'); PRAGMA integrity_check");
            const bool isOld = rows == "2003-03-05 17:00:00|0|0|12|ok|";
            EXPECT_TRUE(rows == "2003-03-05 18:00:00|1|3|13|ok|" || (!done && isOld)) << rows;
            ExpectSoundBackups(isOld ? 0 : 1, 1);
            EXPECT_TRUE(save());
            EXPECT_EQ(Rows("SELECT version FROM _Structure"), "2|");
        },
        kStepOfLongOnes);
}

TEST_P(CrashTest, AnImportIsThereWholeWithItsEntryOrNotAtAll)
{
    RawDatabase(m_database).Run("DELETE FROM TimeRecord; DELETE FROM _Change");
    m_bytes = ReadBytes(m_database);
    WriteOldDatabase(m_folder.Path() + "/old.mdb");
    const auto import = [&] {
        ImportOrder order;
        order.file = m_folder.Path() + "/old.mdb";
        order.database = m_database;
        order.programFolder = m_folder.Path();
        return ImportOldDatabase(order).problem.empty();
    };
    AtEveryCall(import, [&](bool done) {
        const std::string rows =
            Rows("SELECT COUNT(*) FROM Employee; SELECT COUNT(*) FROM TimeRecord; SELECT COUNT(*) FROM _Change; SELECT "
                 "COUNT(*) FROM _Session WHERE user IS NOT NULL; PRAGMA integrity_check");
        EXPECT_TRUE(rows == "2|1|1|0|ok|" || (!done && rows == "1|0|0|0|ok|")) << rows;
    });
}

TEST_P(CrashTest, ABackupIsThereWholeOrNotAtAll)
{
    const auto backUp = [&] { return !MakeBackup(Order()).path.empty(); };
    AtEveryCall(backUp, [&](bool done) {
        ExpectSoundBackups(done ? 1 : 0, 1);
        EXPECT_EQ(ReadBytes(m_database), m_bytes);
        EXPECT_TRUE(backUp());
        ExpectSoundBackups(1, 2);
        for (const auto& entry : fs::directory_iterator(Backups())) {
            EXPECT_TRUE(entry.path().filename().string().starts_with("ptk_11-")) << entry.path();
        }
    });
}

TEST_P(CrashTest, ARestoredDatabaseIsTheOldOrTheNewOne)
{
    const std::string file = m_folder.Path() + "/other.mdb";
    CreateDatabase(file);
    const auto restore = [&] {
        RestoreBackup(Order(), file, {"Ann Lee", "ptk-admin"});
        return true;
    };
    AtEveryCall(restore, [&](bool done) {
        const std::string rows =
            Rows("SELECT COUNT(*) FROM TimeRecord; SELECT COUNT(*) FROM _Change WHERE Action = 'restore'; PRAGMA integrity_check");
        EXPECT_TRUE(rows == "0|1|ok|" || (!done && rows == "1|0|ok|")) << rows;
        ExpectSoundBackups(done ? 1 : 0, 1);
        EXPECT_TRUE(restore());
    });
}

TEST_P(CrashTest, ANewDatabaseIsThereWholeOrNotAtAll)
{
    const std::string path = m_folder.Path() + "/system/new.mdb";
    const auto create = [&] {
        CreateDatabase(path);
        return true;
    };
    AtEveryCall(create, [&](bool done) {
        EXPECT_TRUE(fs::exists(path) ? CheckDatabase(path).problems.empty() : !done);
        fs::remove(path);
    });
}

TEST_P(CrashTest, TheConfigurationIsTheOldOrTheNewOne)
{
    const auto write = [&] {
        CFileAdaptor configuration(m_folder.Path());
        configuration.ReadFile(m_configuration);
        configuration.ReplaceLine("ShowLoginHelp", "False");
        return configuration.WriteFile(m_configuration) && configuration.LastFailure().Number() == 0;
    };
    AtEveryCall(write, [&](bool done) {
        const std::string text = ReadBytes(m_configuration);
        const bool isNew = text == "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n";
        EXPECT_TRUE(isNew || (!done && text == m_old)) << text;
        EXPECT_TRUE(write());
    });
}

std::string NameOf(const testing::TestParamInfo<Misfortune>& kind)
{
    constexpr const char* kNames[] = {"Killed", "KilledHalf", "DiskFull"};
    return kNames[static_cast<int>(kind.param)];
}

INSTANTIATE_TEST_SUITE_P(Of, CrashTest, testing::Values(Misfortune::Killed, Misfortune::KilledHalf, Misfortune::DiskFull), NameOf);

} // namespace

} // namespace ptk
