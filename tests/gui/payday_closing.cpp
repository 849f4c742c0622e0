// The payday from the overview: nobody is forgotten, cards are mended, the payday is closed and accounted for.
#include "gui/PageFixture.h"
#include "ui/boxes/DateCombo.h"

namespace ptk {

namespace {

constexpr int kPaidColumn = 8;

// Ann Lee (40) without a problem; Bo Kim (41), whose shift has no end; Cy Day (42), who is inactive; and a record of nobody. Today is
// 5 March 2003, the usual shift ends at 5 PM.
void AddPaydayStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Bo", "Kim"}, {"Cy", "Day"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        employee.EmployeeActive = employee.LastName != "Day";
        writer.AddEmployee(employee);
    }
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 3}, {9, 0, 0}), DateTime()});
    writer.AddTimeRecord({-1, 42, DateTime({2003, 3, 4}, {8, 0, 0}), DateTime({2003, 3, 4}, {12, 0, 0})});
    writer.AddTimeRecord({-1, 77, DateTime({2003, 3, 4}, {8, 0, 0}), DateTime({2003, 3, 4}, {9, 0, 0})});
}

class PaydayWindowTest : public PageTest
{
protected:
    PaydayWindowTest() : PageTest(AddPaydayStaff) {}

    static QWidget& TopLevel(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name && window->isVisible()) {
                return *window;
            }
        }
        throw std::runtime_error(std::string("no ") + name);
    }
    void OpenOverview()
    {
        Find<QAction>(Main(), "mnuViewOverview").trigger();
        WaitUntilAllRead();
    }
    static QWidget& Window() { return TopLevel("OverviewWindow"); }
    static void WaitUntilAllRead()
    {
        ASSERT_TRUE(QTest::qWaitFor([] { return !Find(Window(), "cmdStop").isVisible(); }));
    }
    static QString Line() { return Find<QLabel>(Window(), "lblNotice").text(); }
    static QString CellIn(const char* table, int row, int column)
    {
        return Find<QTableView>(Window(), table).model()->index(row, column).data().toString();
    }

    // Name, gross pay and when it was paid.
    static QString Rows(const char* table)
    {
        QStringList rows;
        for (int row = 0; row < Find<QTableView>(Window(), table).model()->rowCount(); ++row) {
            rows << CellIn(table, row, 0) + ' ' + CellIn(table, row, 3) + ' ' + CellIn(table, row, kPaidColumn);
        }
        return rows.join(", ");
    }
    static void Do(const char* button)
    {
        Click(Window(), button);
        WaitUntilAllRead();
    }
    static void Undo()
    {
        QApplication::setActiveWindow(&Window());
        QTest::keyClick(&Window(), Qt::Key_Z, Qt::ControlModifier);
        WaitUntilAllRead();
    }
    std::vector<std::string> Paid() { return Stored("SELECT EmployeeID || ' ' || Gross AS x FROM _Payday ORDER BY PaydayID"); }
    std::vector<std::string> Ends() { return Stored("SELECT EndTime AS x FROM TimeRecord WHERE EmployeeID = 41 ORDER BY StartTime"); }
};

TEST_F(PaydayWindowTest, TakesInWhoWasLeftOutAndClosesWhomNothingSpeaksAgainst)
{
    OpenOverview();
    EXPECT_EQ(Rows("grdLeftOut").toStdString(), "Cy Day (inactive) 40.00 , EmployeeID 77 (unknown) 1 record ");
    EXPECT_EQ(CellIn("grdTotals", 0, 0), "Total (2)");
    Do("cmdTakeIn");
    EXPECT_EQ(Rows("grdOverview").toStdString(), "Bo Kim 0.00 , Cy Day 40.00 , Ann Lee 95.00 ");
    EXPECT_EQ(CellIn("grdTotals", 0, 3), "135.00");
    EXPECT_EQ(Rows("grdLeftOut").toStdString(), "EmployeeID 77 (unknown) 1 record ");
    EXPECT_EQ(Find<QPushButton>(Window(), "cmdClosePayday").text(), "Close Pa&yday (all)");
    Do("cmdClosePayday");
    EXPECT_EQ(Line(), "2 closed, 1 not closed: Bo Kim (1 problem); Edit > Undo (Ctrl+Z) takes it back");
    EXPECT_EQ(Rows("grdOverview").toStdString(), "Bo Kim 0.00 , Cy Day 40.00 03/05/2003, Ann Lee 95.00 03/05/2003")
        << "who was taken in stays";
    EXPECT_EQ(Paid(), (std::vector<std::string>{"42 40.00", "40 95.00"}));
    {
        const ExpectedModal details([](QDialog& window) {
            EXPECT_EQ(Find<QPlainTextEdit>(window, "txtPaydayLines").toPlainText(),
                      "closed Cy Day: 4.00 + 0.00 hours, 40.00\nnot closed Bo Kim: 1 problems\nclosed Ann Lee: 8.00 + 1.00 hours, 95.00");
            Click(window, "cmdClose");
        });
        Click(Window(), "cmdNotice");
    }
    Undo();
    EXPECT_EQ(Line(), "Undone: Close Payday 03/01/2003 - 03/15/2003");
    EXPECT_EQ(Paid(), std::vector<std::string>());
    EXPECT_EQ(Rows("grdOverview").toStdString(), "Bo Kim 0.00 , Cy Day 40.00 , Ann Lee 95.00 ");
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(PaydayWindowTest, ClosesTheChosenOnesAfterAQuestionAndReopensThem)
{
    OpenOverview();
    auto& table = Find<QTableView>(Window(), "grdOverview");
    table.selectRow(0);
    EXPECT_EQ(Find<QPushButton>(Window(), "cmdClosePayday").text(), "Close Pa&yday (1 chosen)");
    {
        const ExpectedModal accountant([](QDialog& window) {
            EXPECT_EQ(window.windowTitle(), "Save for Accountant: 3/1/2003 - 3/15/2003");
            EXPECT_EQ(Find<QTableWidget>(window, "grdPreview").rowCount(), 1) << "the chosen one alone";
            Click(window, "cmdClose");
        });
        Find<QAction>(Window(), "mnuAccountant").trigger();
        QApplication::setActiveWindow(&Window());
    }
    program.desktop.answers = {Answer::No, Answer::Yes};
    Do("cmdClosePayday");
    EXPECT_EQ(Paid(), std::vector<std::string>());
    Do("cmdClosePayday");
    EXPECT_EQ(Told().size(), 2U) << "he has a problem";
    EXPECT_EQ(Paid(), std::vector<std::string>{"41 0.00"});
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 1) << "he stays chosen";
    QTest::keyClick(&Window(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    Do("cmdClosePayday");
    EXPECT_EQ(Line(), "1 closed, 1 paid already; Edit > Undo (Ctrl+Z) takes it back");
    Window().close();
    Find<QAction>(Main(), "mnuViewOverview").trigger();
    WaitUntilAllRead();
    EXPECT_EQ(Find<DateCombo>(Window(), "dttbOverviewFrom").Text(), "03/16/2003") << "what follows what was closed";
    Do("cmdOverviewBack");
    EXPECT_EQ(Rows("grdOverview").toStdString(), "Bo Kim 0.00 03/05/2003, Ann Lee 95.00 03/05/2003");
    Find<QAction>(Window(), "mnuReopen").trigger();
    WaitUntilAllRead();
    EXPECT_EQ(Line(), "2 reopened; Edit > Undo (Ctrl+Z) takes it back");
    EXPECT_EQ(Paid(), std::vector<std::string>());
    Undo();
    EXPECT_EQ(Paid(), (std::vector<std::string>{"41 0.00", "40 95.00"}));
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(PaydayWindowTest, MendsSeveralAndAddsAShiftAsOneStepEach)
{
    OpenOverview();
    const auto before = Ends();
    {
        const ExpectedModal mending([](QDialog& window) {
            auto& table = Find<QTableView>(window, "grdMend");
            const auto cell = [&](int column) { return table.model()->index(0, column).data().toString(); };
            EXPECT_EQ(Find<QLabel>(window, "lblMendTicked").text(), "1 of 1 finding ticked, for 1 person");
            EXPECT_EQ(cell(0) + ' ' + cell(2) + ' ' + cell(3) + ' ' + cell(4) + ' ' + cell(5), "Bo Kim End at 05:00 PM 05:00 PM 0.00 8.00");
            QApplication::setActiveWindow(&window);
            QTest::keyClick(&table, Qt::Key_Space);
            EXPECT_FALSE(Find<QPushButton>(window, "cmdSave").isEnabled());
            QTest::keyClick(&table, Qt::Key_F2);
            auto& editor = Find<QLineEdit>(*table.viewport(), "");
            editor.selectAll();
            QTest::keyClicks(&editor, "430p");
            QTest::keyClick(&editor, Qt::Key_Return);
            EXPECT_TRUE(QTest::qWaitFor([&] { return cell(3) == "04:30 PM"; }));
            EXPECT_EQ(cell(2) + ' ' + cell(5), "End at 04:30 PM 7.50") << "what was typed is ticked";
            Find<QComboBox>(window, "cboReason").setEditText("forgot to clock out");
            Click(window, "cmdSave");
        });
        Click(Window(), "cmdMend");
    }
    WaitUntilAllRead();
    EXPECT_EQ(Line(), "1 finding mended for 1 person; Edit > Undo (Ctrl+Z) takes it back");
    EXPECT_EQ(Ends(), std::vector<std::string>{"3/3/2003 4:30:00 PM"});
    EXPECT_EQ(Stored("SELECT Reason AS x FROM _Change"), std::vector<std::string>{"forgot to clock out"});
    {
        const ExpectedModal adding([](QDialog& window) {
            EXPECT_EQ(Find<QLabel>(window, "lblShiftWhom").text(), "For 2 people: Bo Kim, Ann Lee");
            EXPECT_FALSE(Find<QPushButton>(window, "cmdSave").isEnabled());
            Find<DateCombo>(window, "dttbShiftDay").SetText("3/3/2003");
            Find<QLineEdit>(window, "dttbShiftStart").setText("22");
            Find<QLineEdit>(window, "dttbShiftEnd").setText("6");
            EXPECT_EQ(
                Find<QLabel>(window, "lblShiftForecast").text(),
                "03/03/2003 10:00 PM - 03/04/2003 06:00 AM: 8:00 hours for each of 2 people. On that day there are records of: Bo Kim, "
                "Ann Lee.");
            Click(window, "cmdSave");
        });
        Find<QAction>(Window(), "mnuAddShift").trigger();
    }
    WaitUntilAllRead();
    EXPECT_EQ(Line(), "2 shifts added; Edit > Undo (Ctrl+Z) takes it back");
    EXPECT_EQ(Ends().size(), 2U);
    Undo();
    Undo();
    EXPECT_EQ(Ends(), before);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(PaydayWindowTest, AccountsForWhatWasPaidAndWhatChangedSince)
{
    OpenOverview();
    Do("cmdClosePayday");
    Stored("SELECT 1 AS x");
    {
        CJetDB database(program.folder.Path());
        database.DatabaseName(NativePath(program.databasePath).string());
        ASSERT_TRUE(database.ExecuteAction("UPDATE TimeRecord SET EndTime = #3/3/2003 5:30 PM# WHERE EmployeeID = 40"));
    }
    Find<QAction>(Window(), "mnuAccount").trigger();
    QWidget& account = TopLevel("AccountWindow");
    EXPECT_EQ(Find<QLabel>(account, "lblAccount").text(), "03/01/2003 - 03/15/2003: 1 of 2 are paid, 1 changed since");
    const auto& rows = *Find<QTableView>(account, "grdAccount").model();
    QStringList cells;
    for (int column = 0; column < rows.columnCount(); ++column) {
        cells << rows.index(1, column).data().toString();
    }
    EXPECT_EQ(cells.join('|'), "Ann Lee|03/05/2003|8.00 + 1.00|95.00|8.00 + 1.50|102.50|+0.50|+7.50|1");
    const QString told = Find<QPlainTextEdit>(account, "txtAccountPerson").toPlainText();
    EXPECT_TRUE(told.startsWith("Ann Lee\npaid 8.00 + 1.00 hours, 95.00, 03/05/2003 08:05 AM by ")) << told.toStdString();
    EXPECT_TRUE(told.contains("end 03/03/2003 05:00 PM became 03/03/2003 05:30 PM")) << told.toStdString();
    QApplication::setActiveWindow(&account);
    Find<QAction>(Main(), "mnuViewHistory").trigger();
    EXPECT_EQ(Find<QComboBox>(TopLevel("HistoryWindow"), "cboHistoryEmployee").currentData().toInt(), 40);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(PaydayWindowTest, TellsOnTheReportsPageWhoIsInNoListAndTakesThemIn)
{
    ClickTab(Main(), 2);
    auto& page = Find(Main(), "FrameArray(2)");
    auto& list = Find<QListView>(page, "lstEmployees");
    const auto line = [&] { return Find<QLabel>(page, "lblNotice").text(); };
    EXPECT_EQ(list.model()->rowCount(), 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !line().isEmpty(); }));
    EXPECT_EQ(line(), "2 with records in these days are in no list: Cy Day (inactive), EmployeeID 77 (unknown)");
    list.setCurrentIndex(list.model()->index(1, 0));
    Click(page, "cmdNotice");
    EXPECT_EQ(list.model()->rowCount(), 3);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), "Cy Day");
    EXPECT_EQ(list.selectionModel()->selectedRows().value(0).data().toString(), "Ann Lee") << "who was chosen stays so";
    Click(page, "cmdReportPeriodBack");
    EXPECT_EQ(list.model()->rowCount(), 2) << "the given list, on other days";
    EXPECT_EQ(line(), "");
}

} // namespace

} // namespace ptk
