// File > Back Up Now and Restore, and the folder for a second copy.
#include "gui/PageFixture.h"

#include "store/backup/Backups.h"
#include "ui/frame/EndFromOutside.h"
#include "ui/widgets/NoticeLine.h"

#include <csignal>

namespace ptk {

namespace {

void AddFrameBackupsStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.FirstName = "Ann";
    employee.LastName = "Lee";
    employee.EmployeeActive = true;
    writer.AddEmployee(employee);
}

class BackupsWindowTest : public PageTest
{
protected:
    BackupsWindowTest() : PageTest(AddFrameBackupsStaff) {}

    void Trigger(const char* action) { Find<QAction>(Main(), action).trigger(); }
    QString Notice()
    {
        const auto* page = The<QStackedWidget>("pages").currentWidget();
        return Find<QLabel>(*page, "lblNotice").text();
    }
    QString Names() { return The<QComboBox>("cboTCEmployeeName").itemText(0) + The<QComboBox>("cboTCEmployeeName").itemText(1); }
};

void WaitUntilChecked(const QTableWidget& table)
{
    ASSERT_TRUE(QTest::qWaitFor([&] { return table.findItems("checking...", Qt::MatchExactly).isEmpty(); }));
}

TEST_F(BackupsWindowTest, RestoresTheChosenOneAndShowsWhatIsInIt)
{
    Trigger("mnuFileBackUp");
    EXPECT_EQ(Notice(), "Backed up as ptk_11-2003-03-05-080509.mdb");
    CJetDB other(program.folder.Path());
    other.DatabaseName(NativePath(program.databasePath).string());
    ASSERT_TRUE(other.ExecuteAction("UPDATE Employee SET LastName = 'Kim' WHERE LastName = 'Lee'"));
    program.clock.now = DateTime({2003, 3, 6}, {17, 0, 0});
    Trigger("mnuFileBackUp");
    const std::string newest = program.folder.Path() + "/backups/ptk_11-2003-03-06-170000.mdb";
    WriteBytes(newest, ReadBytes(newest).substr(0, 20000));

    Pick(The<QComboBox>("cboTCEmployeeName"), "Ann Lee");
    Find<NoticeLine>(Find(Main(), "FrameArray(2)"), "notice").Say("3 reports complete");
    const ExpectedModal choice([](QDialog& window) {
        auto& table = Find<QTableWidget>(window, "grdBackups");
        auto& restore = Find<QPushButton>(window, "cmdRestore");
        EXPECT_FALSE(restore.isEnabled());
        WaitUntilChecked(table);
        ASSERT_EQ(table.rowCount(), 2);
        EXPECT_EQ(table.item(0, 0)->text() + "|" + table.item(0, 5)->text(), "Thu 03/06/2003 05:00:00 PM|the database file is damaged");
        EXPECT_EQ(table.item(1, 0)->text() + "|" + table.item(1, 2)->text() + "|" + table.item(1, 3)->text() + "|" +
                      table.item(1, 5)->text(),
                  "Wed 03/05/2003 08:05:09 AM|2|0|sound");
        EXPECT_TRUE(restore.isEnabled()) << "the newest sound one is chosen";
        table.selectRow(0);
        EXPECT_FALSE(restore.isEnabled());
        table.selectRow(1);
        restore.click();
    });
    Trigger("mnuFileRestore");
    EXPECT_EQ(Notice(), "Restored from ptk_11-2003-03-05-080509.mdb");
    EXPECT_EQ(Names(), "Ann Lee") << "as it was";
    EXPECT_EQ(StatusText(Main()), "Timecards : Ann Lee : 03/05/2003 - 03/19/2003") << "who is shown now";
    EXPECT_EQ(Find<NoticeLine>(Find(Main(), "FrameArray(2)"), "notice").Text(), "") << "of another database";
    EXPECT_EQ(Stored("SELECT LastName AS x FROM Employee WHERE FirstName = 'Ann'"), std::vector<std::string>{"Lee"});
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(BackupsWindowTest, ASignalOfTheSystemEndsTheProgramAsExitDoesWithoutAQuestion)
{
    const EndFromOutside end;
    TypeInto(The<QComboBox>("cboEmployeeSSN"), "not saved");
    std::filesystem::remove_all(BackupFolder(program.folder.Path()));
    QTimer::singleShot(0, [] { std::raise(SIGTERM); });
    Trigger("mnuFileRestore"); // a dialog that waits for the user
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.ended == 1; }));
    EXPECT_EQ(BackupsIn(BackupFolder(program.folder.Path())).size(), 1U);
    EXPECT_NE(ReadBytes(program.logPath).find("session end"), std::string::npos);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(BackupsWindowTest, TheSecondFolderIsRememberedWhereTheConfigurationCanHoldIt)
{
    ClickTab(Main(), 5);
    auto& box = The<QLineEdit>("txtBackupFolder");
    const std::string configuration = ReadBytes(program.configPath);
    Type(box, "/disk, second");
    Press("cmdApplyOptions");
    EXPECT_EQ(Told().size(), 1U);
    EXPECT_EQ(Notice(), "A folder with a comma, a quotation mark or a line break in its name cannot be remembered.");
    EXPECT_EQ(ReadBytes(program.configPath), configuration);
    Type(box, "/disk");
    Press("cmdApplyOptions");
    EXPECT_EQ(Told(), Boxes());
    EXPECT_NE(ReadBytes(program.configPath).find("[PTK]\r\nBackupFolder=/disk\r\n"), std::string::npos);
    Type(box, "/other");
    Press("cmdCancelOptions");
    EXPECT_EQ(box.text(), "/disk");
}

} // namespace

} // namespace ptk
