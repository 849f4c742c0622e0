// A payday on the Timecards page, and everything that can stand in its way.
#include "gui/PageFixture.h"
#include "model/CEmployeeList.h"
#include "model/CTimeCard.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/DateTimeBox.h"

namespace ptk {

namespace {

ShownBox Told(const char* title, const char* text, Icon icon)
{
    return {text, title, icon, Buttons::Ok};
}

const ShownBox kNoEmployee = Told("Generate Timecard Error", "You must select an employee.", Icon::Exclamation);
const ShownBox kNotGenerated =
    Told("Timecard Generation Error", "An error occurred while generating this timecard. Check time records, rate of pay, or date range.",
         Icon::Exclamation);
const ShownBox kNoRecords =
    Told("Timecard Generation Error", "There are no time records found for this employee during this period.", Icon::Information);
const ShownBox kNotActive = Told("Timecard Generation Error", "This is not an active employee.", Icon::Exclamation);
const ShownBox kNotMoved = Told("Timecard Generation Error", "Cannot move to the selected time period.", Icon::Exclamation);
const ShownBox kNoCardForNew =
    Told("Time Card Creation Error", "You must generate a time card before adding a new time record.", Icon::Information);
const ShownBox kNoCard = Told("Time Card Creation Error", "You must generate a time card before continuing.", Icon::Information);
const ShownBox kNoneToEdit =
    Told("Time Record Selection Error", "You must select a time record to edit before continuing.", Icon::Information);
const ShownBox kNoneToDelete =
    Told("Time Record Selection Error", "You must select a time record to delete before continuing.", Icon::Information);
const ShownBox kDelete{"Deleting will remove this time record from the database permanently. Continue?", "Delete Time Record?",
                       Icon::Question, Buttons::YesNo};
const ShownBox kNotDeleted =
    Told("Time Record Delete Error", "There was an error deleting the time record from the database.", Icon::Exclamation);
const ShownBox kNotFilled =
    Told("Time Record Save Error", "An error occurred while adding this time record to the database.", Icon::Exclamation);
const ShownBox kNotStored =
    Told("Database Save Error", "An error occurred while adding this time record to the database.", Icon::Exclamation);
const ShownBox kEmptyCardNotPrinted =
    Told("Time Card Print Error",
         "706 : An error occurred while printing the current timecard. Check employee record and time records before continuing.",
         Icon::Information);

constexpr auto kPaydayRecords =
    "SELECT EmployeeID || ' ' || StartTime || ' ' || EndTime AS x FROM TimeRecord WHERE EmployeeID < 43 ORDER BY EmployeeID, StartTime";

// Ann Lee (40) worked 9 hours on 5 March and 8.5 on 6 March, Bo Kim (41) as on 5 March; Cy Orr (42) is not active. Di Fox (43), of whose
// days 45 minutes are taken off, worked 9 hours on 5 March and is still at work on 6 March. Today is 5 March 2003.
void AddTimecardPaydayStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    employee.AutoDeductLunchLength = 30;
    employee.AutoDeductBreakLength = 15;
    employee.EmployeeNumber = 7;
    employee.SSN = "1";
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Bo", "Kim"}, {"Cy", "Orr"}, {"Di", "Fox"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        employee.EmployeeActive = employee.FirstName != "Cy";
        employee.AutoDeduct = employee.FirstName == "Di";
        writer.AddEmployee(employee);
    }
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 6}, {8, 0, 30}), DateTime({2003, 3, 6}, {16, 30, 40})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 43, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 43, DateTime({2003, 3, 6}, {8, 0, 0}), DateTime()});
}

const std::vector<std::string> kAtFirst{"40 2003-03-05 08:00:00 2003-03-05 17:00:00", "40 2003-03-06 08:00:30 2003-03-06 16:30:40",
                                        "41 2003-03-05 08:00:00 2003-03-05 17:00:00"};

class TimeCardTest : public PageTest
{
protected:
    TimeCardTest() : PageTest(AddTimecardPaydayStaff) {}

    QComboBox& Employee() { return The<QComboBox>("cboTCEmployeeName"); }
    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }
    QString Period() { return The<DateCombo>("dttbTCFrom").Text() + " - " + The<DateCombo>("dttbTCTo").Text(); }
    QStringList Rows()
    {
        QStringList rows;
        for (int row = 0; row < Grid().model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < 3; ++column) {
                cells << Grid().model()->index(row, column).data().toString();
            }
            rows << cells.join("|");
        }
        return rows;
    }
    QString Totals()
    {
        QStringList figures;
        for (const char* box : {"txtTCHours", "txtTCPayRate", "txtTCOvertimeHours", "txtTCOvertimePayRate", "txtTCPeriodPay"}) {
            figures << Text(box);
        }
        return figures.join(" ");
    }
    QString Line() { return Find(Main(), "FrameArray(1)").findChild<QLabel*>("lblNotice")->text(); }
    void TryAgain() { Find(Main(), "FrameArray(1)").findChild<QToolButton*>("cmdNotice")->click(); }
    QString Mark() { return The<QLabel>("lblTCStrange").text(); }
    bool IsGrey() { return Grid().model()->index(0, 0).data(Qt::ForegroundRole).isValid(); }
    void ChangeDatabase(const std::string& statement)
    {
        CJetDB database(program.folder.Path());
        database.DatabaseName(NativePath(program.databasePath).string());
        EXPECT_TRUE(database.ExecuteAction(statement)) << database.LastFailure().Description();
    }
    QPoint RowPlace(int row) { return Grid().visualRect(Grid().model()->index(row, 0)).center(); }
    void ClickRow(int row) { QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, RowPlace(row)); }
    void GenerateFor(const QString& name)
    {
        Pick(Employee(), name);
        Press("cmdGenTimeRecs");
        EXPECT_EQ(Told(), Boxes());
    }
    static void Enter(QDialog& editor, const char* start, const char* end)
    {
        Type(Find<DateTimeBox>(editor, "dttbStartTime"), start);
        Type(Find<DateTimeBox>(editor, "dttbEndTime"), end);
        Click(editor, "cmdSave");
    }
    static void FillTwoDays(QDialog& window)
    {
        EXPECT_EQ(Find<DateCombo>(window, "dttbTCFrom").Text(), "03/05/2003");
        EXPECT_EQ(Find<DateCombo>(window, "dttbTCTo").Text(), "03/19/2003");
        Type(*Find<DateCombo>(window, "dttbTCFrom").lineEdit(), "3/10");
        Type(*Find<DateCombo>(window, "dttbTCTo").lineEdit(), "3/11");
        Click(window, "cmdAutoShift");
        Click(window, "cmdSave");
    }
};

TEST_F(TimeCardTest, StepsToAPeriodAndShowsItsCard)
{
    EXPECT_EQ(Period(), "03/05/2003 - 03/19/2003");
    EXPECT_EQ(Employee().count(), 3) << "neither the administrator nor who is not active";
    Pick(Employee(), "Ann Lee");
    EXPECT_EQ(StatusText(Main()), "Timecards : Ann Lee : 03/05/2003 - 03/19/2003");
    Press("cmdPeriodBack");
    EXPECT_EQ(StatusText(Main()), "Timecards : Ann Lee : 02/18/2003 - 03/04/2003");
    Press("cmdPeriodNext");
    EXPECT_EQ(Rows(), QStringList()) << "stepping generates nothing";
    Press("cmdGenTimeRecs");
    EXPECT_EQ(Rows(), (QStringList{"03/05/2003 08:00 AM|03/05/2003 05:00 PM|9.00", "03/06/2003 08:00 AM|03/06/2003 04:30 PM|8.50"}));
    EXPECT_EQ(Totals(), "16.00 10.00 1.50 15.00 182.50");
    EXPECT_EQ(Told(), Boxes());
    Press("cmdTCBack");
    EXPECT_EQ(Employee().currentText(), "Bo Kim");
    EXPECT_EQ(Rows(), QStringList());
    EXPECT_EQ(Totals(), "    ");
}

TEST_F(TimeCardTest, ThePeriodIsSteppedByKeysAndOfferedAgain)
{
    GenerateFor("Ann Lee");
    EXPECT_FALSE(Find(Main(), "cmdLastPeriod").toolTip().startsWith("03/05/2003")) << "nobody chose the one that begins today";
    QTest::keyClick(&Employee(), Qt::Key_Left, Qt::AltModifier);
    QTRY_COMPARE(Period(), "02/18/2003 - 03/04/2003");
    QTest::keyClick(&Employee(), Qt::Key_Right, Qt::AltModifier);
    QTRY_COMPARE(Period(), "03/05/2003 - 03/19/2003");
    TypeInto(The<DateCombo>("dttbTCFrom"), "03/03/2003");
    TypeInto(The<DateCombo>("dttbTCTo"), "03/07/2003");
    GenerateFor("Ann Lee");
    Press("cmdPeriodNext");
    program.Controller()->UnloadControllerWindow();
    GuiProgram next(AddTimecardPaydayStaff);
    next.LogIn();
    EXPECT_EQ(Find<DateCombo>(next.Main(), "dttbTCFrom").Text(), "03/05/2003") << "as it always begins";
    Click(next.Main(), "cmdLastPeriod");
    EXPECT_EQ(Find<DateCombo>(next.Main(), "dttbTCFrom").Text(), "03/03/2003");
    EXPECT_EQ(Find<DateCombo>(next.Main(), "dttbTCTo").Text(), "03/07/2003");
}

TEST_F(TimeCardTest, ACardThatIsNotTheChosenOneSaysSo)
{
    EXPECT_TRUE(Employee().lineEdit()->hasFocus()) << "the work begins here";
    GenerateFor("Ann Lee");
    EXPECT_EQ(Line(), "Ann Lee's card generated: 2 records");
    EXPECT_EQ(Mark(), "");
    EXPECT_FALSE(IsGrey());
    Pick(Employee(), "Bo Kim");
    EXPECT_EQ(Mark(), "This is Ann Lee's card, 03/05/2003 - 03/19/2003. Press Generate Timecard for Bo Kim.");
    EXPECT_TRUE(IsGrey());
    EXPECT_EQ(Line(), "");
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(Find<QLabel>(window, "lblOwner").text(), "For Ann Lee, whose card was generated last, not for Bo Kim");
            EXPECT_EQ(Find<QLabel>(window, "lblWarning").text().trimmed(), "This record runs from midnight to midnight.");
            Enter(window, "18", "19");
        });
        Press("cmdTCNew");
    }
    EXPECT_EQ(Line(), "Record saved for Ann Lee");
    EXPECT_EQ(Rows().size(), 1) << "Bo's card";
    EXPECT_EQ(Mark(), "");
    TypeInto(The<DateCombo>("dttbTCTo"), "3/7/2003");
    EXPECT_EQ(Mark(), "This is Bo Kim's card, 03/05/2003 - 03/19/2003. Press Generate Timecard for Bo Kim.");
    Press("cmdPeriodNext");
    EXPECT_EQ(Mark(), "New Record still goes to Bo Kim's card, 03/05/2003 - 03/19/2003. Press Generate Timecard for Bo Kim.");
}

TEST_F(TimeCardTest, TellsWhatTheFiguresMean)
{
    GenerateFor("Di Fox");
    EXPECT_EQ(Totals(), "7.25 10.00 0.25 15.00 76.25");
    EXPECT_EQ(The<QLabel>("lblTCBreakTime").text(), "after 1:30 break time");
    const QModelIndex start = Grid().model()->index(1, 0);
    const QModelIndex end = start.siblingAtColumn(1);
    const QString found = "\nProblem: The shift that began on 03/06/2003 08:00 AM has no end and counts nothing."
                          "\nProblem: The shift of 03/06/2003 08:00 AM starts in the future."
                          "\nProblem: On 03/06/2003 the automatic deduction takes 0:45 hours off 0:00 hours worked.";
    EXPECT_EQ(start.data(Qt::ToolTipRole), "Thursday" + found);
    EXPECT_FALSE(start.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(start.siblingAtRow(0).data(Qt::ToolTipRole) == "Wednesday") << "9 hours are none";
    EXPECT_EQ(end.data(), "12/30/1899 12:00 AM");
    EXPECT_EQ(end.data(Qt::AccessibleDescriptionRole), "still clocked in" + found);
    EXPECT_FALSE(end.data(Qt::DecorationRole).value<QIcon>().isNull());
    Grid().setFocus();
    QTest::keyClick(&Grid(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cmdTCNew") << "behind findings and hours; figures are read, not filled in";
}

TEST_F(TimeCardTest, AnEmployeeWhoWasSavedStaysChosenOnANewCard)
{
    GenerateFor("Ann Lee");
    ClickTab(Main(), 3);
    Pick(The<QComboBox>("cboEmployeeName"), "Ann Lee");
    The<QComboBox>("cboEmployeeName").setEditText("Ann Lee-Kim");
    The<QLineEdit>("txtPayRate").setText("20");
    Press("cmdEmployeeSave");
    EXPECT_EQ(Told(), Boxes());
    EXPECT_EQ(Employee().currentText(), "Ann Lee-Kim");
    EXPECT_EQ(Totals(), "16.00 20.00 1.50 15.00 342.50");
    EXPECT_EQ(Mark(), "");
}

TEST_F(TimeCardTest, FindsTheEmployeeByTyping)
{
    TypeInto(Employee(), "bo kim");
    Key(Employee(), Qt::Key_Tab);
    EXPECT_EQ(StatusText(Main()), "Timecards : Bo Kim : 03/05/2003 - 03/19/2003");
    TypeInto(Employee(), "ann lee");
    Key(Employee(), Qt::Key_Return);
    EXPECT_EQ(StatusText(Main()), "Timecards : Ann Lee : 03/05/2003 - 03/19/2003");
    Key(Employee(), Qt::Key_Return);
    EXPECT_EQ(Rows().size(), 2) << "Enter generates the card";
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(TimeCardTest, TheDateBoxesFollowEachOtherOneWay)
{
    TypeInto(The<DateCombo>("dttbTCTo"), "3/7/2003");
    EXPECT_EQ(Period(), "03/05/2003 - 03/07/2003");
    TypeInto(The<DateCombo>("dttbTCFrom"), "3/1/2003");
    EXPECT_EQ(Period(), "03/01/2003 - 03/15/2003");
    EXPECT_EQ(StatusText(Main()), "Timecards :  : 03/01/2003 - 03/15/2003");
    TypeInto(The<DateCombo>("dttbTCFrom"), "payday");
    EXPECT_EQ(Period(), "payday - 03/15/2003");
}

TEST_F(TimeCardTest, ANewAndAnEditedRecordAreStoredAtOnce)
{
    GenerateFor("Ann Lee");
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(window.windowTitle(), "Edit Time Record");
            EXPECT_EQ(Find<DateTimeBox>(window, "dttbStartDate").text(), "03/05/2003") << "today";
            Enter(window, "18", "1930");
        });
        Press("cmdTCNew");
    }
    EXPECT_EQ(Rows(), (QStringList{"03/05/2003 08:00 AM|03/05/2003 05:00 PM|9.00", "03/05/2003 06:00 PM|03/05/2003 07:30 PM|1.50",
                                   "03/06/2003 08:00 AM|03/06/2003 04:30 PM|8.50"}));
    {
        const ExpectedModal editor([](QDialog& window) { Enter(window, "8", "12"); });
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, RowPlace(2));
        QTest::mouseDClick(Grid().viewport(), Qt::LeftButton, {}, RowPlace(2));
    }
    EXPECT_EQ(Stored(kPaydayRecords), (std::vector<std::string>{kAtFirst[0], "40 2003-03-05 18:00:00 2003-03-05 19:30:00",
                                                                "40 2003-03-06 08:00:00 2003-03-06 12:00:00", kAtFirst[2]}));
    EXPECT_EQ(Totals(), "12.00 10.00 2.50 15.00 157.50");
    EXPECT_EQ(Main().focusWidget(), &Grid());
    EXPECT_EQ(Grid().currentIndex().row(), 2) << "on the record that was saved";
    Press("cmdTCEdit");
    EXPECT_EQ(Told(), Boxes{kNoneToEdit}) << "the grid was rebuilt";
}

TEST_F(TimeCardTest, WhatCouldNotBeReadIsNotSaidToBeSaved)
{
    GenerateFor("Ann Lee");
    ClickRow(0);
    const ExpectedModal editor([](QDialog& window) { Enter(window, "9", "late"); });
    Press("cmdTCEdit");
    EXPECT_EQ(Line(), "Record saved, but the end could not be read: Ann Lee, 03/05/2003 09:00 AM - 03/05/2003 05:00 PM");
    EXPECT_EQ(Rows().front(), "03/05/2003 09:00 AM|03/05/2003 05:00 PM|8.00");
}

TEST_F(TimeCardTest, DeletesByKeyAfterAsking)
{
    GenerateFor("Ann Lee");
    ClickRow(0);
    Press("cmdTCDelete");
    EXPECT_EQ(Told(), Boxes{kDelete});
    EXPECT_EQ(Stored(kPaydayRecords), kAtFirst) << "No was the answer";
    program.desktop.answers = {Answer::Yes, Answer::Yes};
    ClickRow(0);
    QTest::keyClick(&Grid(), Qt::Key_Down);
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(Told(), Boxes{kDelete});
    EXPECT_EQ(Stored(kPaydayRecords), (std::vector{kAtFirst[0], kAtFirst[2]})) << "the shown times have no seconds";
    EXPECT_EQ(Totals(), "8.00 10.00 1.00 15.00 95.00");
    QTest::keyClick(&Grid(), Qt::Key_Delete);
    EXPECT_EQ(Told(), Boxes{kNoneToDelete}) << "the grid was rebuilt";
    EXPECT_EQ(Main().focusWidget(), &Grid());
    QTest::keyClick(&Grid(), Qt::Key_Space);
    Press("cmdTCDelete");
    EXPECT_EQ(Told(), (Boxes{kDelete, kNoRecords}));
    EXPECT_EQ(Totals(), "    ");
}

TEST_F(TimeCardTest, TheChosenRowMeansItsOwnRecord)
{
    GenerateFor("Ann Lee");
    ClickRow(0);
    {
        const ExpectedModal editor([](QDialog& window) {
            Type(Find<DateTimeBox>(window, "dttbStartDate"), "3/6");
            Type(Find<DateTimeBox>(window, "dttbEndDate"), "3/6");
            Type(Find<DateTimeBox>(window, "dttbStartTime"), "8");
            Type(Find<DateTimeBox>(window, "dttbEndTime"), "16:30");
            Click(window, "cmdCancel");
        });
        QTest::keyClick(&Grid(), Qt::Key_Return); // edits, and generates nothing anew
    }
    ClickRow(1);
    program.desktop.answers = {Answer::Yes};
    Press("cmdTCDelete");
    EXPECT_EQ(Stored(kPaydayRecords), (std::vector{kAtFirst[0], kAtFirst[2]})) << "not the one that was given its times";
    EXPECT_EQ(Line(), "Record of Ann Lee deleted");
}

TEST_F(TimeCardTest, FillsAPeriodAlsoOfACardWithoutRecords)
{
    Pick(Employee(), "Bo Kim");
    Press("cmdPeriodNext");
    Press("cmdGenTimeRecs");
    EXPECT_EQ(Told(), Boxes{kNoRecords});
    Press("cmdPeriodBack");
    const ExpectedModal window(FillTwoDays);
    Press("cmdFill");
    EXPECT_EQ(Period(), "03/10/2003 - 03/11/2003");
    EXPECT_EQ(Rows(), (QStringList{"03/10/2003 08:00 AM|03/10/2003 05:00 PM|9.00", "03/11/2003 08:00 AM|03/11/2003 05:00 PM|9.00"}));
    EXPECT_EQ(Stored(kPaydayRecords).size(), 5U);
    EXPECT_EQ(Line(), "2 records filled in for Bo Kim");
    EXPECT_EQ(Main().focusWidget(), &Grid());
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(TimeCardTest, PrintsTheCardAsItIsInTheDatabase)
{
    Press("cmdTCPrint");
    EXPECT_EQ(Told(), (Boxes{kNoEmployee, kEmptyCardNotPrinted}));
    Pick(Employee(), "Ann Lee");
    Press("cmdTCPrint");
    EXPECT_EQ(Rows().size(), 2);
    EXPECT_EQ(Told(), Boxes());
    const std::filesystem::directory_iterator reports(program.folder.Path() + "/reports");
    EXPECT_EQ(std::distance(begin(reports), end(reports)), 1);
}

TEST_F(TimeCardTest, SaysWhatIsMissing)
{
    EXPECT_FALSE(The<QPushButton>("cmdFill").isEnabled());
    struct Step
    {
        const char* name;
        std::function<void()> act;
        Boxes told;
    };
    const auto press = [this](const char* button) { return [this, button] { Press(button); }; };
    const auto generateAfter = [this](const std::function<void()>& first) {
        return [this, first] {
            first();
            Press("cmdGenTimeRecs");
        };
    };
    for (const Step& step : {
             Step{"new", press("cmdTCNew"), {kNoCardForNew}},
             {"edit", press("cmdTCEdit"), {kNoCard}},
             {"delete", press("cmdTCDelete"), {kNoCard}},
             {"no employee", press("cmdGenTimeRecs"), {kNoEmployee}},
             {"nobody", generateAfter([this] { TypeInto(Employee(), "Nobody"); }), {kNotActive}},
             {"edit after a failed card", press("cmdTCEdit"), {kNoneToEdit}},
             {"delete after a failed card", press("cmdTCDelete"), {kNoneToDelete}},
             {"no date", generateAfter([this] { TypeInto(The<DateCombo>("dttbTCTo"), "payday"); }), {kNotGenerated}},
             {"no date to step from",
              generateAfter([this] {
                  TypeInto(The<DateCombo>("dttbTCFrom"), "1/1/1899");
                  Press("cmdPeriodNext");
              }),
              {kNotMoved, kNotGenerated}},
         }) {
        step.act();
        EXPECT_EQ(Told(), step.told) << step.name;
    }
}

TEST_F(TimeCardTest, AnotherEmployeeOrPageNeedsAFreshChoice)
{
    GenerateFor("Ann Lee");
    ClickRow(0);
    Pick(Employee(), "Bo Kim");
    Press("cmdTCEdit");
    EXPECT_EQ(Told(), Boxes{kNoneToEdit});
    ClickRow(0);
    ClickTab(Main(), 3);
    ClickTab(Main(), 1);
    EXPECT_TRUE(Grid().selectionModel()->hasSelection()) << "nothing was done in between";
    ClickTab(Main(), 3);
    Pick(The<QComboBox>("cboEmployeeName"), "Bo Kim");
    ClickTab(Main(), 1);
    EXPECT_FALSE(Grid().selectionModel()->hasSelection());
    Press("cmdTCDelete");
    EXPECT_EQ(Told(), Boxes{kNoneToDelete});
}

TEST_F(TimeCardTest, AFileInUseIsNamedAsTheReason)
{
    GenerateFor("Ann Lee");
    const QStringList shown = Rows();
    const auto holder = HoldDatabase();
    program.desktop.answers = {Answer::Yes};
    ClickRow(1);
    Press("cmdTCDelete");
    EXPECT_EQ(Told(), (Boxes{kDelete, kNotDeleted}));
    EXPECT_EQ(Line(), "Record not deleted: the database is in use by another program");
    EXPECT_EQ(Rows(), shown);
    Press("cmdGenTimeRecs");
    EXPECT_EQ(Told(), Boxes{kNoRecords});
    EXPECT_EQ(Line(), "Ann Lee's records could not be read: the database is in use by another program");
    EXPECT_EQ(Rows(), QStringList());
}

TEST_F(TimeCardTest, ARefusedSaveIsToldAndOfferedAgain)
{
    GenerateFor("Ann Lee");
    ChangeDatabase(
        "CREATE TRIGGER rule BEFORE INSERT ON TimeRecord WHEN NEW.StartTime LIKE '%18:00:00' OR NEW.StartTime LIKE '2003-03-11%' "
        "BEGIN SELECT RAISE(ABORT, 'no'); END");
    {
        const ExpectedModal editor([](QDialog& window) { Enter(window, "18", "1930"); });
        Press("cmdTCNew");
    }
    EXPECT_EQ(Told(), Boxes{kNotStored});
    EXPECT_TRUE(Line().startsWith("Record not saved: ")) << Line().toStdString();
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(Find<DateTimeBox>(window, "dttbEndTime").text(), "07:30:00 PM") << "as it was typed";
            EXPECT_EQ(Find<QLineEdit>(window, "txtTotalTime").text(), "1.50");
            Enter(window, "1801", "1930");
        });
        TryAgain();
    }
    EXPECT_EQ(Rows().size(), 3);
    ChangeDatabase("DELETE FROM TimeRecord WHERE TimeRecordID = 1");
    {
        const ExpectedModal window(FillTwoDays);
        Press("cmdFill");
    }
    EXPECT_EQ(Told(), Boxes{kNotFilled});
    EXPECT_EQ(Stored(kPaydayRecords).size(), 3U) << "all days or none";
    EXPECT_EQ(Rows().size(), 2) << "what the database holds by now";
    ChangeDatabase("DROP TRIGGER rule");
    const ExpectedModal window([](QDialog& dialog) {
        EXPECT_EQ(Find<DateTimeBox>(dialog, "dttbStartTime").text(), "08:00:00 AM");
        Click(dialog, "cmdSave");
    });
    TryAgain();
    EXPECT_EQ(Stored(kPaydayRecords).size(), 5U);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(TimeCardTest, AReportOnAnotherEmployeeDoesNotMoveTheChoice)
{
    GenerateFor("Ann Lee");
    const auto controller = program.Controller();
    CTimeCard other(controller->TimeRecordFactory());
    other.PTKDatabase(controller->PTKDatabase());
    ASSERT_TRUE(
        other.GenerateTimecard(controller->EmployeeList()->GetEmployeeByName("Bo Kim"), DateTime({2003, 3, 5}), DateTime({2003, 3, 6})));
    ClickRow(0);
    program.desktop.answers = {Answer::Yes};
    Press("cmdTCDelete");
    EXPECT_EQ(Stored(kPaydayRecords), (std::vector{kAtFirst[1], kAtFirst[2]})) << "Ann's shift, not Bo's of the same times";
}

} // namespace

} // namespace ptk
