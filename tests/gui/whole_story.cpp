// What an owner may go through with the sample business, from the windows alone: changes, taken back one by one; who did them; a spoiled
// file, and the backup of it.
#include "gui/PageFixture.h"
#include "office/business/SampleBusiness.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/DateTimeBox.h"

#include <optional>

namespace ptk {

namespace {

constexpr auto kEverything =
    "SELECT * FROM (SELECT 'r' || TimeRecordID || ' ' || EmployeeID || ' ' || StartTime || ' ' || EndTime AS x FROM TimeRecord "
    "UNION ALL SELECT 'e' || EmployeeID || ' ' || FirstName || ' ' || LastName || ' ' || PayRate FROM Employee)";
constexpr int kChanges = 6; // a rate, three shifts, a deletion, an auto fill

void AddSample(BulkWriter& writer)
{
    AddSampleBusiness(writer, DateTime({2003, 3, 5}));
}

class WholeStoryTest : public PageTest
{
protected:
    WholeStoryTest() : PageTest(AddSample) {}

    void ChangeRate()
    {
        ClickTab(Main(), 3);
        Pick(The<QComboBox>("cboEmployeeName"), "Ann Lee");
        Type(The<QLineEdit>("txtPayRate"), "99");
        Press("cmdEmployeeSave");
        ClickTab(Main(), 1);
    }

    void ChangeShift(int row)
    {
        const ExpectedModal editor([](QDialog& window) {
            Type(Find<DateTimeBox>(window, "dttbEndTime"), "8:15p");
            Click(window, "cmdSave");
        });
        ChooseRow(row);
        Press("cmdTCEdit");
    }

    void DeleteShift(int row)
    {
        program.desktop.answers = {Answer::Yes};
        ChooseRow(row);
        Press("cmdTCDelete");
    }

    void FillAWeek()
    {
        const ExpectedModal fill([](QDialog& window) {
            Type(*Find<DateCombo>(window, "dttbTCFrom").lineEdit(), "4/1/2003");
            Type(*Find<DateCombo>(window, "dttbTCTo").lineEdit(), "4/7/2003");
            Click(window, "cmdAutoShift");
            Click(window, "cmdSave");
        });
        Press("cmdFill");
    }

    void ChooseRow(int row)
    {
        auto& grid = The<QTableView>("grdTimeRecs");
        grid.scrollTo(grid.model()->index(row, 0));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(row, 0)).center());
    }

    // The login comes when the restored database has been opened.
    void StartOnSpoiledFile()
    {
        std::optional<ModalScript> login;
        const ExpectedModal restore([&](QDialog& window) {
            auto& button = Find<QPushButton>(window, "cmdRestore");
            ASSERT_TRUE(QTest::qWaitFor([&] { return button.isEnabled(); }));
            login.emplace([](QDialog& dialog) {
                Find<QLineEdit>(dialog, "txtName").setText("administrator");
                Find<QLineEdit>(dialog, "txtPassword").setText("wharf271");
                Find<QPushButton>(dialog, "cmdLogin").click();
            });
            button.click();
        });
        program.Start();
    }
};

TEST_F(WholeStoryTest, EverythingComesBack)
{
    const auto atFirst = Stored(kEverything);
    ChangeRate();
    Pick(The<QComboBox>("cboTCEmployeeName"), "Ann Lee");
    Press("cmdPeriodBack");
    Press("cmdGenTimeRecs");
    for (const int row : {0, 1, 2}) {
        ChangeShift(row);
    }
    DeleteShift(3);
    FillAWeek();
    EXPECT_EQ(Told().size(), 1U) << "only whether to delete";
    EXPECT_EQ(Stored(kEverything).size(), atFirst.size() - 1 + 7);
    const auto changed = Stored("SELECT COUNT(*) || ' ' || MIN(ChangedBy) || ' ' || COUNT(DISTINCT Step) AS x FROM _Change");
    EXPECT_EQ(changed, std::vector<std::string>{"12 administrator 6"});

    QApplication::setActiveWindow(&Main());
    for (int i = 0; i < kChanges; ++i) {
        QTest::keyClick(&The<QTableView>("grdTimeRecs"), Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(Stored(kEverything), atFirst);
    EXPECT_FALSE(Find<QAction>(Main(), "mnuEditUndo").isEnabled());
    EXPECT_EQ(Told(), Boxes());

    Main().close();
    EXPECT_EQ(program.ended, 1);
    WriteBytes(program.databasePath, std::string(70000, '\x5A'));
    StartOnSpoiledFile();
    EXPECT_EQ(Told(), (Boxes{{"The database cannot be opened because it is missing or corrupt.", "Database Open Error", Icon::Exclamation,
                              Buttons::Ok}}));
    ASSERT_NE(program.Controller(), nullptr);
    EXPECT_TRUE(Main().isVisible());
    EXPECT_EQ(Stored(kEverything), atFirst);
    EXPECT_EQ(Stored("SELECT Action AS x FROM _Change ORDER BY ChangeID DESC LIMIT 1"), std::vector<std::string>{"restore"});
}

} // namespace

} // namespace ptk
