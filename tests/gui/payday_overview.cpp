// The payday overview as a window.
#include "gui/PageFixture.h"
#include "ui/boxes/DateCombo.h"

namespace ptk {

namespace {

constexpr int kName = 0;

// Ann Lee (40) and her namesake (41), whose shift has no end; Bo Kim (42), whose shift ends before it starts, twice. Today is 5 March 2003.
void AddPaydayOverviewStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    employee.EmployeeActive = true;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Ann", "Lee"}, {"Bo", "Kim"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        writer.AddEmployee(employee);
    }
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 3}, {9, 0, 0}), DateTime({2003, 3, 3}, {10, 0, 0})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 4}, {1, 0, 0}), DateTime()});
    writer.AddTimeRecord({-1, 42, DateTime({2003, 3, 3}, {17, 0, 0}), DateTime({2003, 3, 3}, {8, 0, 0})});
    writer.AddTimeRecord({-1, 42, DateTime({2003, 3, 4}, {17, 0, 0}), DateTime({2003, 3, 4}, {8, 0, 0})});
}

class OverviewWindowTest : public PageTest
{
protected:
    explicit OverviewWindowTest(const std::function<void(BulkWriter&)>& fill = AddPaydayOverviewStaff) : PageTest(fill)
    {
        Find<QAction>(Main(), "mnuViewOverview").trigger();
    }

    static QWidget& Window()
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "OverviewWindow") {
                return *window;
            }
        }
        throw std::runtime_error("no overview");
    }
    static bool IsReading() { return Find(Window(), "cmdStop").isVisible(); }
    static void WaitUntilRead()
    {
        ASSERT_TRUE(QTest::qWaitFor([] { return !IsReading(); }));
    }
    static QTableView& Table() { return Find<QTableView>(Window(), "grdOverview"); }
    static QString Cell(int row, int column) { return Table().model()->index(row, column).data().toString(); }
    static QString Names()
    {
        QStringList names;
        for (int row = 0; row < Table().model()->rowCount(); ++row) {
            names << Cell(row, kName) + ' ' + Cell(row, 1);
        }
        return names.join(", ");
    }
    static QString Label(const char* name) { return Find<QLabel>(Window(), name).text(); }
    static void ReadAgain()
    {
        QApplication::setActiveWindow(&Window());
        QTest::keyClick(&Window(), Qt::Key_F5);
    }
    void Elsewhere(const std::string& sql)
    {
        CJetDB database(program.folder.Path());
        database.DatabaseName(NativePath(program.databasePath).string());
        EXPECT_TRUE(database.ExecuteAction(sql)) << database.LastFailure().Description();
    }
    void Activate()
    {
        QApplication::setActiveWindow(&Main());
        QApplication::setActiveWindow(&Window());
        QCoreApplication::processEvents();
    }
    static QString Totals() { return Find<QTableView>(Window(), "grdTotals").model()->index(0, kName).data().toString(); }
    static void ClickHeading(int column)
    {
        QHeaderView& heading = *Table().horizontalHeader();
        QTest::mouseClick(heading.viewport(), Qt::LeftButton, {}, {heading.sectionViewportPosition(column) + 5, heading.height() / 2});
    }
};

TEST_F(OverviewWindowTest, SaysWhomNotToPayYetAndWhy)
{
    WaitUntilRead();
    EXPECT_EQ(Find<DateCombo>(Window(), "dttbOverviewFrom").Text(), "03/01/2003") << "the running period";
    EXPECT_EQ(Label("lblOverview"), "Read 03/05/2003 08:05 AM: 2 of 3 employees have problems.");
    EXPECT_EQ(Names(), "Bo Kim 0.00, Ann Lee 1.00, Ann Lee 8.00") << "most problems first";
    EXPECT_EQ(Label("lblOverviewFindings"), "Bo Kim: 2 problems");
    EXPECT_EQ(Find<QListView>(Window(), "lstOverviewFindings").model()->rowCount(), 2);
    EXPECT_EQ(Totals(), "Total (3)");
    ClickHeading(kName);
    EXPECT_EQ(Names(), "Bo Kim 0.00, Ann Lee 8.00, Ann Lee 1.00") << "as in every list";
    QTest::mouseClick(&Find(Window(), "chkOnlyProblems"), Qt::LeftButton);
    EXPECT_EQ(Names(), "Bo Kim 0.00, Ann Lee 1.00");
    EXPECT_EQ(Totals(), "Total (2 of 3)");
    QTest::keyClick(&Window(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().count('\n'), 3);
    Table().selectRow(1);
    EXPECT_EQ(Label("lblOverviewFindings"), "Ann Lee: 1 problem");
    QTest::keyClick(&Window(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Name\tRegular\tOvertime\tGross Pay\tLongest Week\tProblems\tNotices\tClocked In\tPaid\tChanged\n"
              "Ann Lee\t1.00\t0.00\t10.00\t1.00\t1\t0\t\t\t\n");
}

TEST_F(OverviewWindowTest, OpensTheCardOfTheVeryEmployeeAndReadsAgain)
{
    WaitUntilRead();
    QTest::mouseClick(&Find(Window(), "cmdOverviewBack"), Qt::LeftButton);
    WaitUntilRead();
    EXPECT_EQ(Names(), "Ann Lee 0.00, Bo Kim 0.00, Ann Lee 0.00") << "an open shift is on the cards before it, too";
    QTest::mouseClick(&Find(Window(), "cmdOverviewNext"), Qt::LeftButton);
    WaitUntilRead();
    Table().selectRow(1);
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_EQ(The<DateCombo>("dttbTCFrom").Text(), "03/01/2003");
    EXPECT_EQ(The<QTableView>("grdTimeRecs").model()->rowCount(), 2) << "the second of the namesakes";
    EXPECT_EQ(Text("txtTCPeriodPay"), "10.00");
    EXPECT_EQ(The<QLabel>("lblTCStrange").text(), "");
    Press("cmdTCPrint");
    EXPECT_EQ(Text("txtTCPeriodPay"), "10.00") << "printed is what is shown";
    The<QTableView>("grdTimeRecs").selectRow(1);
    program.desktop.answers = {Answer::Yes};
    Press("cmdTCDelete");
    EXPECT_EQ(Told().size(), 1U) << "the question";
    EXPECT_EQ(The<QTableView>("grdTimeRecs").model()->rowCount(), 1);
    EXPECT_EQ(Text("txtTCPeriodPay"), "10.00") << "still hers";
    ReadAgain();
    WaitUntilRead();
    EXPECT_EQ(Label("lblOverview"), "Read 03/05/2003 08:05 AM: 1 of 3 employees has problems.");
    EXPECT_EQ(Label("lblOverviewFindings"), "Ann Lee: No problems or notices") << "the chosen one stays chosen";
    const auto holder = HoldDatabase();
    ReadAgain();
    WaitUntilRead();
    EXPECT_EQ(Label("lblNotice"), "The overview could not be read: the database is in use by another program");
    EXPECT_EQ(Table().model()->rowCount(), 3) << "as it was read before";
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(OverviewWindowTest, IsReadAnewByF9AfterAChangeAndSaysThatThereWasOne)
{
    WaitUntilRead();
    Table().selectRow(1);
    Table().setFocus();
    QTest::keyClick(&Table(), Qt::Key_Return);
    The<QTableView>("grdTimeRecs").selectRow(1);
    program.desktop.answers = {Answer::Yes};
    Press("cmdTCDelete");
    EXPECT_EQ(Label("lblNotice"), "Changed since it was read");
    EXPECT_EQ(Label("lblOverviewFindings"), "Ann Lee: 1 problem") << "as it was read";
    Find<QAction>(Main(), "mnuViewOverview").trigger();
    WaitUntilRead();
    EXPECT_EQ(Label("lblNotice"), "");
    EXPECT_EQ(Label("lblOverviewFindings"), "Ann Lee: No problems or notices") << "the chosen one stays chosen";
    const auto before = Label("lblOverview");
    program.clock.now = DateTime({2003, 3, 5}, {9, 0, 0});
    Find<QAction>(Main(), "mnuViewOverview").trigger();
    EXPECT_FALSE(IsReading()) << "nothing was changed";
    Elsewhere("DELETE FROM TimeRecord WHERE EmployeeID = 42");
    Activate();
    EXPECT_EQ(Label("lblNotice"), "Changed since it was read") << "by somebody else";
    EXPECT_EQ(Label("lblOverview"), before);
    Click(Window(), "cmdNotice");
    WaitUntilRead();
    EXPECT_EQ(Label("lblOverview"), "Read 03/05/2003 09:00 AM: 0 of 3 employees have problems.");
}

TEST_F(OverviewWindowTest, WalksThroughThoseWithProblemsFromTheMainWindow)
{
    WaitUntilRead();
    const auto walk = [&](Qt::KeyboardModifiers modifiers) {
        QApplication::setActiveWindow(&Main());
        QTest::keyClick(&Main(), Qt::Key_F3, modifiers);
        return The<QComboBox>("cboTCEmployeeName").currentText() + ' ' + Text("txtTCPeriodPay");
    };
    Window().close();
    EXPECT_EQ(walk({}), "Bo Kim 0.00");
    EXPECT_EQ(walk({}), "Ann Lee 10.00") << "the second of that name";
    EXPECT_EQ(walk({}), "Ann Lee 10.00");
    EXPECT_EQ(Find<QLabel>(Find(Main(), "FrameArray(1)"), "lblNotice").text(), "Nobody behind has problems in the payday overview");
    EXPECT_EQ(walk(Qt::ShiftModifier), "Bo Kim 0.00");
    EXPECT_EQ(The<DateCombo>("dttbTCFrom").Text(), "03/01/2003");
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(OverviewWindowTest, OpensTheHistoryOfTheChosenOne)
{
    WaitUntilRead();
    Elsewhere("UPDATE Employee SET Phone = '1' WHERE EmployeeID IN (40, 41)");
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Table().visualRect(Table().model()->index(1, 0)).center());
    QApplication::setActiveWindow(&Window());
    Find<QAction>(Main(), "mnuViewHistory").trigger();
    const auto windows = QApplication::topLevelWidgets();
    const auto named =
        std::find_if(windows.begin(), windows.end(), [](const QWidget* w) { return w->isVisible() && w->objectName() == "HistoryWindow"; });
    ASSERT_NE(named, windows.end());
    const QWidget& history = **named;
    EXPECT_EQ(Find<QComboBox>(history, "cboHistoryEmployee").currentData().toInt(), 41);
    EXPECT_EQ(Find<QTableView>(history, "grdHistory").model()->rowCount(), 1);
    EXPECT_FALSE(Find<QCheckBox>(history, "chkHistoryScope").isChecked()) << "her whole history";
}

constexpr int kMany = 12000;

class LongOverviewTest : public OverviewWindowTest
{
protected:
    LongOverviewTest() : OverviewWindowTest(AddMany) {}

    static void AddMany(BulkWriter& writer)
    {
        EmployeeRow employee;
        employee.EmployeeActive = true;
        for (int i = 0; i < kMany; ++i) {
            employee.LastName = std::to_string(i);
            writer.AddEmployee(employee);
        }
    }
};

TEST_F(LongOverviewTest, FillsWhileItIsUsedAndStopsWhenTold)
{
    QSignalSpy rowsCame(Table().model(), &QAbstractItemModel::rowsInserted);
    ASSERT_TRUE(rowsCame.wait());
    EXPECT_TRUE(IsReading());
    ReadAgain(); // anew, not twice
    ASSERT_TRUE(rowsCame.wait());
    QTest::mouseClick(&Find(Window(), "cmdStop"), Qt::LeftButton);
    const int read = Table().model()->rowCount();
    EXPECT_LT(read, kMany);
    QTest::qWait(100);
    EXPECT_EQ(Table().model()->rowCount(), read);
    EXPECT_TRUE(Label("lblOverview").startsWith(QString("Stopped after %1 of 12000 employees").arg(read)));
    Window().close();
    EXPECT_FALSE(Window().isVisible());
}

} // namespace

} // namespace ptk
