// Who changed what: the history as a window, and how a card leads to it.
#include "gui/PageFixture.h"
#include "store/sqlite/SqliteEngine.h"
#include "support/Execute.h"
#include "ui/boxes/DateCombo.h"

namespace ptk {

namespace {

// Ann Lee (40) worked on 5 March 2003, which is today, and on the day before.
void AddHistoryWindowStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.FirstName = "Ann";
    employee.LastName = "Lee";
    employee.EmployeeActive = true;
    employee.PayRate = 10;
    writer.AddEmployee(employee);
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 6}, {8, 0, 0}), DateTime({2003, 3, 6}, {17, 0, 0})});
}

class HistoryWindowTest : public PageTest
{
protected:
    HistoryWindowTest() : PageTest(AddHistoryWindowStaff)
    {
        Pick(The<QComboBox>("cboTCEmployeeName"), "Ann Lee");
        Elsewhere("UPDATE TimeRecord SET EndTime = '2003-03-05 18:00:00' WHERE TimeRecordID = 1");
        Date();
        Press("cmdGenTimeRecs");
        Grid().selectRow(1);
        program.desktop.answers = {Answer::Yes};
        Press("cmdTCDelete");
        static_cast<void>(Told());
        Elsewhere("UPDATE _System SET period_length = 7");
        Date();
    }

    // As another tool would.
    void Elsewhere(const std::string& sql) const { ExecuteIn(NativePath(program.databasePath).string(), sql); }
    void Date() const { Elsewhere("UPDATE _Change SET ChangedAt = '2003-03-05 08:05:09'"); }
    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }
    void Open(const char* action) { Find<QAction>(Main(), action).trigger(); }
    static QWidget& Window()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "HistoryWindow" && window->isVisible()) {
                return *window;
            }
        }
        throw std::runtime_error("no history");
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QApplication::setActiveWindow(&Window());
        QTest::keyClick(&Window(), key, modifiers);
    }
    template <typename Control>
    static Control& Its(const char* name)
    {
        return Find<Control>(Window(), name);
    }
    static QStringList Rows()
    {
        const QAbstractItemModel& rows = *Its<QTableView>("grdHistory").model();
        QStringList texts;
        for (int row = 0; row < rows.rowCount(); ++row) {
            texts << rows.index(row, 1).data().toString() + ": " + rows.index(row, 3).data().toString();
        }
        return texts;
    }
    static QString Line() { return Its<QLabel>("lblNotice").text(); }
};

const QString kChanged = "another program: end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM";
const QString kDeleted = "administrator: 03/06/2003 08:00 AM - 03/06/2003 05:00 PM deleted";
const QString kOptions = "another program: Options: period length 14 became 7";

TEST_F(HistoryWindowTest, TellsOnTheCardAndOpensItsHistory)
{
    EXPECT_EQ(Grid().model()->index(0, 0).data(Qt::ToolTipRole).toString().section('\n', 0, 1),
              "Wednesday\nChanged by another program on 03/05/2003 08:05 AM");
    Open("mnuViewCardHistory");
    EXPECT_EQ(Its<QCheckBox>("chkHistoryScope").text(), "&Only what counts for 03/05/2003 - 03/19/2003");
    EXPECT_EQ(Rows(), (QStringList{kDeleted, kChanged})) << "the deleted record, too";
    Grid().selectRow(0);
    Open("mnuViewCardHistory");
    EXPECT_EQ(Its<QCheckBox>("chkHistoryScope").text(), "&Only the record of 03/05/2003 08:00 AM");
    EXPECT_EQ(Rows(), QStringList{kChanged});
    QStringList offered;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (const QAction* action : menu->actions()) {
            offered << action->text();
        }
        menu->actions().at(1)->trigger();
        menu->close();
    });
    emit Grid().customContextMenuRequested({5, 5});
    EXPECT_EQ(offered, (QStringList{"History of This &Record", "&History of Ann Lee in This Period"}));
    EXPECT_EQ(Rows(), (QStringList{kDeleted, kChanged}));
    Open("mnuViewCardHistory");
    EXPECT_EQ(Rows(), QStringList{kChanged}) << "the record is still chosen";
    QTest::mouseClick(&Its<QCheckBox>("chkHistoryScope"), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(Rows(), (QStringList{kDeleted, kChanged}));
    Open("mnuViewHistory");
    EXPECT_EQ(Rows().size(), 2) << "an open one is only shown";
    Click(Window(), "cmdHistoryAll");
    EXPECT_EQ(Rows(), (QStringList{kOptions, kDeleted, kChanged}));
    Key(Qt::Key_Escape);
    EXPECT_THROW(Window(), std::runtime_error);
}

TEST_F(HistoryWindowTest, ChoosesCopiesAndSaves)
{
    Open("mnuViewHistory");
    EXPECT_EQ(Its<QLabel>("lblHistory").text(), "3 changes");
    Pick(Its<QComboBox>("cboHistoryKind"), "Time records");
    Pick(Its<QComboBox>("cboHistoryPerson"), "Another program");
    EXPECT_EQ(Rows(), QStringList{kChanged});
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "When\tWho\tEmployee\tWhat\n03/05/2003 08:05:09 AM\tanother program\tAnn Lee\tend 03/05/2003 "
              "05:00 PM became 03/05/2003 06:00 PM\n");
    const auto saveTo = [](const QString& path) {
        const ExpectedModal dialog([&](QDialog& window) {
            EXPECT_EQ(QFileInfo(dynamic_cast<QFileDialog&>(window).selectedFiles().value(0)).fileName(), "PTK history 2003-03-05.pdf");
            dynamic_cast<QFileDialog&>(window).selectFile(path);
            window.accept();
        });
        Click(Window(), "cmdSave");
        EXPECT_TRUE(QTest::qWaitFor([] { return !Find(Window(), "cmdStop").isVisible(); }));
    };
    const std::string path = program.folder.Path() + "/saved.csv";
    saveTo(QString::fromStdString(path));
    EXPECT_EQ(Line(), "Saved: 1 change in saved.csv");
    EXPECT_TRUE(ReadBytes(path).ends_with("Ann Lee: end 03/05/2003 05:00 PM became 03/05/2003 06:00 PM,\r\n"));
    const auto holder = HoldDatabase();
    saveTo(QString::fromStdString(program.folder.Path() + "/other.csv"));
    EXPECT_EQ(Line(), "Not saved: the database is in use by another program");
    EXPECT_FALSE(std::filesystem::exists(program.folder.Path() + "/other.csv"));
    Pick(Its<QComboBox>("cboHistoryAction"), "Deleted");
    EXPECT_EQ(Line(), "The history could not be read: the database is in use by another program");
    EXPECT_EQ(Rows(), QStringList()) << "what was read before is not what is chosen";
    EXPECT_FALSE(Its<QPushButton>("cmdSave").isEnabled());
    holder->CloseDB();
    Key(Qt::Key_F5);
    EXPECT_EQ(Line() + Rows().join(""), "");
    EXPECT_EQ(Its<QTableView>("grdHistory").accessibleDescription(), "Nothing was changed that fits what is chosen above.");
    TypeInto(Its<DateCombo>("dttbHistoryFrom"), "x");
    EXPECT_TRUE(QTest::qWaitFor([] { return Line() == "Choose days, the first not after the last, or leave them empty"; }));
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(HistoryWindowTest, ReadsMoreAsOneScrollsDown)
{
    Elsewhere("WITH RECURSIVE Day (d) AS (SELECT 1 UNION ALL SELECT d + 1 FROM Day WHERE d < 600) INSERT INTO TimeRecord (EmployeeID, "
              "StartTime) SELECT 40, datetime('2000-01-01', d || ' days') FROM Day");
    Open("mnuViewHistory");
    EXPECT_EQ(Its<QLabel>("lblHistory").text(), "The newest 250 changes; older ones follow as you scroll down");
    auto& table = Its<QTableView>("grdHistory");
    const auto holder = HoldDatabase();
    table.scrollToBottom();
    EXPECT_EQ(Line(), "The history could not be read: the database is in use by another program");
    holder->CloseDB();
    Key(Qt::Key_F5);
    for (int page = 0; page < 3; ++page) {
        table.scrollToBottom();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(Its<QLabel>("lblHistory").text() + Line(), "603 changes");
    EXPECT_EQ(Rows().last(), kChanged);
}

} // namespace

} // namespace ptk
