// File > Import Older Database, and the same at the first start.
#include "gui/PageFixture.h"
#include "support/OldDatabase.h"
#include "ui/safety/FFirstStart.h"

namespace ptk {

namespace {

class ImportWindowTest : public PageTest
{
protected:
    ImportWindowTest() : PageTest({}) {}

    std::string Old() const { return program.folder.Path() + "/old.mdb"; }
};

void Read(QDialog& window, const std::string& file)
{
    Type(Find<QLineEdit>(window, "txtFile"), QString::fromStdString(file));
    Click(window, "cmdRead");
}

QString Hint(const QDialog& window)
{
    return Find<QLabel>(window, "lblHint").text();
}

QString Account(const QDialog& window)
{
    return Find<QPlainTextEdit>(window, "txtAccount").toPlainText();
}

TEST_F(ImportWindowTest, ShowsWhatIsInTheFileBeforeItIsTaken)
{
    WriteOldDatabase(Old());
    const ExpectedModal import([&](QDialog& window) {
        EXPECT_FALSE(Find<QPushButton>(window, "cmdImport").isEnabled());
        Read(window, Old() + "x");
        EXPECT_TRUE(Hint(window).endsWith("old.mdbx: there is no such file.")) << Hint(window).toStdString();
        Read(window, Old());
        EXPECT_EQ(Hint(window), "This is what can be brought along. Nothing has been written yet.");
        EXPECT_TRUE(Account(window).contains("Employee 1 José José: 1 records, 6:00 hours"));
        EXPECT_FALSE(Find<QCheckBox>(window, "chkAccept").isVisible());
        EXPECT_EQ(Stored("SELECT COUNT(*) AS x FROM TimeRecord"), std::vector<std::string>{"0"});
        Click(window, "cmdImport");
        EXPECT_TRUE(Hint(window).startsWith("Imported. The account is kept as ")) << Hint(window).toStdString();
        Click(window, "cmdCancel");
    });
    Find<QAction>(Main(), "mnuFileImport").trigger();
    EXPECT_GE(The<QComboBox>("cboTCEmployeeName").findText("José José"), 0);
    EXPECT_EQ(Stored("SELECT ChangedBy AS x FROM _Change"), std::vector<std::string>{"administrator"});
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(ImportWindowTest, ADamagedFileIsTakenOnlyAfterATick)
{
    WriteOldDatabase(Old(), 2);
    const ExpectedModal import([&](QDialog& window) {
        Read(window, Old());
        EXPECT_TRUE(Hint(window).startsWith("The file shows signs of damage"));
        EXPECT_FALSE(Find<QPushButton>(window, "cmdImport").isEnabled());
        Find<QCheckBox>(window, "chkAccept").click();
        Click(window, "cmdImport");
        EXPECT_TRUE(Hint(window).startsWith("Imported."));
        Click(window, "cmdCancel");
    });
    Find<QAction>(Main(), "mnuFileImport").trigger();
    EXPECT_EQ(Stored("SELECT COUNT(*) AS x FROM TimeRecord"), std::vector<std::string>{"1"});
}

TEST(ImportAtFirstStartTest, BeginsTheFolderWithTheOlderDatabase)
{
    const TemporaryFolder folder;
    FixedClock clock;
    const std::string data = folder.Path() + "/data/ptk-admin";
    FFirstStart first(data, clock);
    first.show();
    Find<QRadioButton>(first, "optImport").click();
    {
        const ExpectedModal refused([&](QDialog& window) {
            Read(window, folder.Path() + "/none.mdb");
            Click(window, "cmdCancel");
        });
        Click(first, "cmdStart");
    }
    EXPECT_TRUE(first.isVisible());
    EXPECT_FALSE(HoldsConfiguration(data));
    WriteOldDatabase(folder.Path() + "/old.mdb");
    const ExpectedModal import([&](QDialog& window) {
        Read(window, folder.Path() + "/old.mdb");
        Click(window, "cmdImport");
        EXPECT_TRUE(Hint(window).contains(QString::fromStdString(data + "/reports/Import_2003-03-05_080509.txt")));
        Click(window, "cmdCancel");
    });
    Click(first, "cmdStart");
    EXPECT_EQ(first.result(), QDialog::Accepted);
    EXPECT_TRUE(HoldsConfiguration(data));
    EXPECT_FALSE(ReadBytes(data + "/reports/Import_2003-03-05_080509.txt").empty());
}

} // namespace

} // namespace ptk
