#include "console/ConsoleFixture.h"

#include "store/backup/BackupNames.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"

#include <unistd.h>

#include <filesystem>

namespace ptk {

namespace {

class HistoryAndBackupsTest : public ConsoleTest
{
protected:
    void SetUp() override { ASSERT_EQ(Run({"create-database", "--sample", "--today", "3/20/2026"}).status, 0); }

    void Elsewhere(const std::string& sql) const { ExecuteIn(Database().string(), sql); }
    std::string Backup(const std::string& name) const { return (Folder() / "backups" / name).string(); }
};

TEST_F(HistoryAndBackupsTest, TheHistoryIsOfAnEmployeeAndOfDays)
{
    Elsewhere("INSERT INTO Employee (EmployeeID, FirstName, LastName) VALUES (900, 'Zoe', 'Quick')");
    Elsewhere("UPDATE Employee SET LastName = 'Slow' WHERE EmployeeID = 900");
    Elsewhere("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) VALUES (900, #3/5/2003 8:00 AM#, #3/5/2003 5:00 PM#)");
    Elsewhere("UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE EmployeeID = 900");
    Elsewhere("UPDATE _Change SET ChangedAt = '2026-03-1' || ChangeID || ' 23:59:59'");
    Elsewhere("UPDATE Company SET Phone = '1' WHERE CompanyID = 1");
    struct Case
    {
        std::vector<std::string> words;
        int status;
        std::string out;
    };
    const std::string last = "03/14/2026 11:59:59 PM  another program  Zoe Slow: end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM\n";
    const std::string added = "03/13/2026 11:59:59 PM  another program  Zoe Slow: 03/05/2003 08:00 AM - 03/05/2003 05:00 PM added\n";
    const std::string renamed = "03/12/2026 11:59:59 PM  another program  Zoe Slow: last name \"Quick\" became \"Slow\"\n";
    for (const Case& c : {
             Case{{"--employee", "Zoe Slow", "--from", "3/13/2026"}, 0, last + added},
             Case{{"--employee", "Zoe Quick", "--from", "3/12/2026", "--to", "3/13/2026"}, 0, added + renamed},
             Case{{"--to", "3/10/2026"}, 0, ""},
             Case{{"--employee", "Zoe Nobody"}, 1, ""},
             Case{{"--from", "3/14/2026", "--to", "3/13/2026"}, 2, ""},
             Case{{"--from", "soon"}, 2, ""},
             Case{{"--format", "xml"}, 2, ""},
         }) {
        std::vector<std::string> words{"history"};
        words.insert(words.end(), c.words.begin(), c.words.end());
        const Answer answer = Run(words);
        EXPECT_EQ(answer.status, c.status) << c.words.back() << answer.err;
        EXPECT_EQ(answer.out, c.out) << c.words.back();
    }
    EXPECT_TRUE(Run({"history", "--employee", "Zoe Nobody"}).err.starts_with("ptk-console: 602: "));
}

TEST_F(HistoryAndBackupsTest, BacksUpListsAndRestores)
{
    EXPECT_EQ(Run({"backups"}).out, "");
    const std::string name = "ptk_11-2026-03-20-093000.mdb";
    const Answer made = Run({"backup"});
    EXPECT_EQ(made.status, 0) << made.err;
    EXPECT_EQ(made.out, "backup: " + Backup(name) + "\n");
    Elsewhere("DELETE FROM TimeRecord");
    const Answer restored = Run({"restore", name});
    EXPECT_EQ(restored.status, 0) << restored.err;
    EXPECT_EQ(restored.out, "kept: " + Backup("ptk_11-2026-03-20-093001.mdb") + "\nrestored: " + Backup(name) + "\n");
    EXPECT_EQ(Run({"check"}).status, 0);
    EXPECT_NE(Run({"history"}).out.find("Database restored from " + Backup(name)), std::string::npos);
    const Answer list = Run({"backups"});
    EXPECT_EQ(list.status, 0);
    EXPECT_NE(list.out.find("093001.mdb  "), std::string::npos);
    EXPECT_NE(list.out.find("  0 records  newest shift none\nptk_11-2026-03-20-093000.mdb  "), std::string::npos) << list.out;

    WriteBytes(Backup(name), "spoiled");
    EXPECT_EQ(Run({"backups"}).status, 3);
    const Answer refused = Run({"restore", Backup(name)});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "ptk-console: 26: the file is not a database of this program: " + Backup(name) + "\n");
    std::filesystem::remove_all(Folder() / "backups");
    WriteBytes((Folder() / "backups").string(), "no folder");
    EXPECT_EQ(Run({"backups"}).status, 1);
    EXPECT_NE(Run({"backups"}).err.find((Folder() / "backups").string()), std::string::npos);
    EXPECT_EQ(Run({"restore"}).status, 2);
}

TEST_F(HistoryAndBackupsTest, AFileOfOnesOwnIsNeverReplacedAndASecondCopyIsToldWhereItIsMissing)
{
    const std::string target = (Folder() / "mine.mdb").string();
    EXPECT_EQ(Run({"backup", "--to", target}).status, 0);
    for (const std::string& refused : {target, Folder().string(), (Folder() / "none" / "a.mdb").string()}) {
        const Answer answer = Run({"backup", "--to", refused});
        EXPECT_EQ(answer.status, 1) << refused;
        EXPECT_NE(answer.err.find(refused), std::string::npos) << answer.err;
    }
    EXPECT_FALSE(std::filesystem::exists(Folder() / "backups"));

    const std::filesystem::path second = Folder() / "second";
    WriteBytes(System("ptk_11.cfg").string(), ReadBytes(System("ptk_11.cfg").string()) + "BackupFolder=" + second.string() + "\r\n");
    const Answer alone = Run({"backup"});
    EXPECT_EQ(alone.status, 3);
    EXPECT_NE(alone.err.find("there is no second copy in " + second.string()), std::string::npos) << alone.err;
    std::filesystem::create_directory(second);
    EXPECT_EQ(Run({"backup"}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(second / "ptk_11-2026-03-20-093001.mdb"));
}

} // namespace

} // namespace ptk
