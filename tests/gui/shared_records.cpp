// Undoing what was stored, and what somebody else changed meanwhile.
#include "gui/PageFixture.h"
#include "ui/boxes/DateTimeBox.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

namespace {

constexpr auto kRecords = "SELECT EmployeeID || ' ' || StartTime || ' ' || EndTime AS x FROM TimeRecord ORDER BY TimeRecordID";
constexpr auto kAnn = "SELECT IFNULL(Phone, '') || ' ' || PayRate AS x FROM Employee WHERE EmployeeID = 40";

// Ann Lee (40) and Bo & Co (41), each with one shift on 5 March 2003, which is today; and a company.
void AddSharedRecordsStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.EmployeeActive = true;
    employee.EmployeeNumber = 7;
    employee.SSN = "1";
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Bo", "& Co"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        const std::int32_t id = writer.AddEmployee(employee);
        writer.AddTimeRecord({-1, id, DateTime({2003, 3, 5}, {8, 0, 0}), DateTime({2003, 3, 5}, {17, 0, 0})});
    }
    CompanyRow company;
    company.CompanyName = "Acorn";
    writer.AddCompany(company);
}

class SharedRecordsTest : public PageTest
{
protected:
    SharedRecordsTest() : PageTest(AddSharedRecordsStaff) {}

    void Elsewhere(const std::string& sql)
    {
        CJetDB database(program.folder.Path());
        database.DatabaseName(NativePath(program.databasePath).string());
        EXPECT_TRUE(database.ExecuteAction(sql)) << database.LastFailure().Description();
    }

    void Generate(const QString& name)
    {
        Pick(The<QComboBox>("cboTCEmployeeName"), name);
        Press("cmdGenTimeRecs");
    }

    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }
    void ChooseRow()
    {
        const QPoint place = Grid().visualRect(Grid().model()->index(0, 0)).center();
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, place);
    }
    QString Cell(int column) { return Grid().model()->index(0, column).data().toString(); }

    QString Said(int page) { return Find<NoticeLine>(Find(Main(), QString("FrameArray(%1)").arg(page)), "notice").Text(); }
    void PressNotice(int page) { Click(Find(Main(), QString("FrameArray(%1)").arg(page)), "cmdNotice"); }
    QString Line(const char* line) { return Find<QAction>(Main(), line).text(); }
    static void Undo(QWidget& focus) { QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier); }
    static void Redo(QWidget& focus) { QTest::keyClick(&focus, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    bool Shows(int page) { return Find(Main(), QString("FrameArray(%1)").arg(page)).isVisible(); }

    // As after another window was in front.
    void ComeBack()
    {
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Main(), &activated);
        QCoreApplication::processEvents();
    }
};

TEST_F(SharedRecordsTest, ADeletedRecordComesBack)
{
    const auto atFirst = Stored(kRecords);
    EXPECT_EQ(Line("mnuEditUndo"), "&Undo");
    EXPECT_FALSE(Find<QAction>(Main(), "mnuEditUndo").isEnabled());
    Generate("Bo & Co");
    ChooseRow();
    program.desktop.answers = {Answer::Yes};
    Press("cmdTCDelete");
    EXPECT_EQ(Told().size(), 2U) << "asked, and told that the card is empty now";
    EXPECT_EQ(Stored(kRecords).size(), 1U);
    EXPECT_EQ(Line("mnuEditUndo"), "&Undo Delete 03/05/2003 08:00 AM (Bo && Co)");
    ClickTab(Main(), 4);
    {
        const auto holder = HoldDatabase();
        Undo(The<QPushButton>("cmdCompanyNew"));
        EXPECT_EQ(Told(), (Boxes{{"\"Delete 03/05/2003 08:00 AM\" was not undone: the database is in use by another program.", "Undo Error",
                                  Icon::Exclamation, Buttons::Ok}}));
    }
    Undo(The<QPushButton>("cmdCompanyNew"));
    EXPECT_EQ(Stored(kRecords), atFirst);
    EXPECT_TRUE(Shows(1));
    EXPECT_EQ(Said(1), "Undone: Delete 03/05/2003 08:00 AM (Bo & Co)");
    EXPECT_EQ(Cell(2), "9.00");
    EXPECT_EQ(Grid().selectionModel()->selectedRows().size(), 1) << "the one that is back";
    Redo(Grid());
    EXPECT_EQ(Said(1), "Done again: Delete 03/05/2003 08:00 AM (Bo & Co)");
    EXPECT_EQ(Stored(kRecords).size(), 1U);
    Undo(Grid());
    EXPECT_EQ(Stored(kRecords), atFirst);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(SharedRecordsTest, ABoxKeepsTheKeysWhileItHasSomethingToUndo)
{
    ClickTab(Main(), 4);
    Type(The<QLineEdit>("txtCompanyFax"), "5");
    Press("cmdCompanySave");
    const std::string fax = "SELECT IFNULL(Fax, '') AS x FROM Company";
    struct Place
    {
        int page;
        const char* box;
    };
    for (const Place& place : {Place{1, "cboTCEmployeeName"},
                               {1, "dttbTCFrom"},
                               {3, "txtEmployeePhone"},
                               {3, "cboEmployeeSSN"},
                               {3, "txtPassword"},
                               {5, "dttbAutoShiftStartTime"},
                               {1, "txtTCHours"},
                               {5, "cboFirstWeekday"}}) {
        ClickTab(Main(), place.page);
        auto& box = The<QWidget>(place.box);
        box.setFocus();
        Undo(box);
        EXPECT_EQ(Stored(fax).front(), "") << place.box;
        Find<QAction>(Main(), "mnuEditRedo").trigger();
        EXPECT_EQ(Stored(fax).front(), "5");
    }
    ClickTab(Main(), 3);
    for (QWidget* box : {&The<QWidget>("txtEmployeePhone"), &The<QWidget>("cboEmployeeSSN"), &The<QWidget>("cboHireDate")}) {
        auto* list = qobject_cast<QComboBox*>(box);
        const QLineEdit& editor = list != nullptr ? *list->lineEdit() : *qobject_cast<QLineEdit*>(box);
        box->setFocus();
        const QString before = editor.text();
        QTest::keyClicks(box, "77");
        Undo(*box);
        EXPECT_EQ(editor.text(), before);
        Redo(*box);
        EXPECT_TRUE(editor.text().contains("77"));
        EXPECT_EQ(Stored(fax).front(), "5") << "its own text was meant";
        Undo(*box);
    }
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(SharedRecordsTest, AnUndoneEmployeeIsShownAndNothingTypedIsLost)
{
    Generate("Ann Lee");
    ClickTab(Main(), 3);
    Pick(The<QComboBox>("cboEmployeeID"), "40");
    Type(The<QLineEdit>("txtPayRate"), "20");
    Press("cmdEmployeeSave");
    EXPECT_EQ(Line("mnuEditUndo"), "&Undo Change Ann Lee");
    EXPECT_EQ(Text("txtTCPayRate"), "20.00");
    Find<QAction>(Main(), "mnuEditUndo").trigger();
    EXPECT_EQ(The<QComboBox>("cboEmployeeID").currentText() + Text("txtPayRate"), "4010.00");
    EXPECT_EQ(Said(3), "Undone: Change Ann Lee");
    EXPECT_EQ(Text("txtTCPayRate"), "10.00") << "the card is renewed";
    Pick(The<QComboBox>("cboEmployeeID"), "41");
    Type(The<QLineEdit>("txtEmployeePhone"), "77");
    Find<QAction>(Main(), "mnuEditRedo").trigger();
    EXPECT_EQ(The<QComboBox>("cboEmployeeID").currentText() + Text("txtEmployeePhone"), "4177") << "nobody else's page goes away";
    Pick(The<QComboBox>("cboEmployeeID"), "40");
    Type(The<QLineEdit>("txtEmployeePhone"), "88");
    Find<QAction>(Main(), "mnuEditUndo").trigger();
    EXPECT_EQ(Line("mnuEditRedo"), "&Redo Change Ann Lee");
    EXPECT_EQ(Said(3), "Undone: Change Ann Lee. Changes to Ann Lee were not saved");
    EXPECT_EQ(Text("txtEmployeePhone") + " " + Text("txtPayRate"), " 10.00");
    PressNotice(3);
    EXPECT_EQ(Text("txtEmployeePhone") + " " + Text("txtPayRate"), "88 10.00") << "and the undone rate stays undone";
    Pick(The<QComboBox>("cboEmployeeID"), "41");
    Press("cmdEmployeeSave");
    Type(The<QLineEdit>("txtEmployeePhone"), "99");
    Pick(The<QComboBox>("cboEmployeeID"), "41");
    Type(The<QLineEdit>("txtEmployeePhone"), "66");
    Press("cmdEmployeeSave");
    EXPECT_EQ(Line("mnuEditUndo"), "&Undo Change Bo && Co");
}

TEST_F(SharedRecordsTest, ARefusedEmployeeCanBeLoadedAndKeepsWhatWasTyped)
{
    ClickTab(Main(), 3);
    Pick(The<QComboBox>("cboEmployeeID"), "40");
    Elsewhere("UPDATE Employee SET PayRate = 12 WHERE EmployeeID = 40");
    Type(The<QLineEdit>("txtEmployeePhone"), "77");
    const ShownBox changed{"The record of Ann Lee was changed by somebody else since it was read.\r\n\r\nPay rate: 10 when read, 12 now"
                           "\r\n\r\nLoad what is stored now? What was typed can be brought back afterwards.",
                           "List Save Error", Icon::Exclamation, Buttons::YesNo};
    Press("cmdEmployeeSave");
    EXPECT_EQ(Told(), Boxes{changed});
    EXPECT_EQ(Text("txtEmployeePhone") + " " + Text("txtPayRate"), "77 10.00");
    program.desktop.answers = {Answer::Yes};
    Press("cmdEmployeeSave");
    EXPECT_EQ(Told(), Boxes{changed}) << "refused as before";
    EXPECT_EQ(Text("txtEmployeePhone") + " " + Text("txtPayRate"), " 12.00");
    PressNotice(3);
    EXPECT_EQ(Text("txtEmployeePhone") + " " + Text("txtPayRate"), "77 12.00");
    Press("cmdEmployeeSave");
    EXPECT_EQ(Told(), Boxes());
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{"77 12"});
    ClickTab(Main(), 4);
    Elsewhere("DELETE FROM Company");
    Type(The<QLineEdit>("txtCompanyFax"), "5");
    program.desktop.answers = {Answer::Yes};
    Press("cmdCompanySave");
    EXPECT_EQ(Told().size(), 1U);
    EXPECT_EQ(Text("txtCompanyFax"), "");
    PressNotice(4);
    Press("cmdCompanySave");
    EXPECT_EQ(Stored("SELECT CompanyID || Name || Fax AS x FROM Company"), std::vector<std::string>{"2Acorn5"}) << "as a new one";
}

TEST_F(SharedRecordsTest, ARefusedRecordIsTriedAgainOnWhatIsStored)
{
    Generate("Ann Lee");
    for (const bool removed : {false, true}) {
        ChooseRow();
        Elsewhere(removed ? "DELETE FROM TimeRecord WHERE EmployeeID = 40"
                          : "UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE EmployeeID = 40");
        {
            const ExpectedModal editor([](QDialog& window) {
                Type(Find<DateTimeBox>(window, "dttbEndTime"), "19");
                Click(window, "cmdSave");
            });
            Press("cmdTCEdit");
        }
        const Boxes told = Told();
        ASSERT_EQ(told.size(), 1U);
        EXPECT_TRUE(told[0].text.starts_with("The time record 03/05/2003 08:00 AM of Ann Lee was ")) << told[0].text;
        EXPECT_EQ(Said(1), removed ? "Record not saved: somebody else has removed it" : "Record not saved: somebody else has changed it");
        EXPECT_EQ(Cell(1), removed ? "" : "03/05/2003 06:00 PM");
        {
            const ExpectedModal editor([](QDialog& window) {
                EXPECT_EQ(Find<DateTimeBox>(window, "dttbEndTime").Text(), "07:00:00 PM");
                Click(window, "cmdSave");
            });
            PressNotice(1);
        }
        EXPECT_EQ(Told(), Boxes());
        EXPECT_EQ(Cell(1), "03/05/2003 07:00 PM");
    }
}

TEST_F(SharedRecordsTest, RefusedOptionsCanBeLoaded)
{
    ClickTab(Main(), 5);
    Elsewhere("UPDATE _System SET period_length = 7");
    Elsewhere("UPDATE _CheckLimits SET first_weekday = 1");
    The<QLineEdit>("txtPeriodLength").setText("10");
    The<QLineEdit>("txtLongShift").setText("12");
    program.desktop.answers = {Answer::Yes};
    Press("cmdApplyOptions");
    EXPECT_EQ(Told().size(), 1U);
    EXPECT_EQ(Text("txtPeriodLength") + " " + Text("txtLongShift"), "7 16");
    PressNotice(5);
    Press("cmdApplyOptions");
    EXPECT_EQ(Said(5), "Options applied");
    EXPECT_EQ(Stored("SELECT period_length || ' ' || long_shift_hours || ' ' || first_weekday AS x FROM _System, _CheckLimits"),
              std::vector<std::string>{"10 12 1"});
}

TEST_F(SharedRecordsTest, WhatOthersChangedIsToldWhenThePageComesToTheFront)
{
    Generate("Ann Lee");
    ComeBack();
    EXPECT_EQ(Said(1), "Ann Lee's card generated: 1 record");
    Elsewhere("UPDATE TimeRecord SET EndTime = #3/5/2003 6:00 PM# WHERE EmployeeID = 40");
    ComeBack();
    EXPECT_EQ(Said(1), "Ann Lee's records were changed by somebody else meanwhile");
    EXPECT_EQ(Cell(1), "03/05/2003 05:00 PM");
    PressNotice(1);
    EXPECT_EQ(Cell(1), "03/05/2003 06:00 PM");
    EXPECT_EQ(Said(1), "What is stored now was loaded");
    Pick(The<QComboBox>("cboEmployeeID"), "40");
    Elsewhere("UPDATE Employee SET PayRate = 12 WHERE EmployeeID = 40");
    Elsewhere("UPDATE Company SET Fax = '9'");
    ClickTab(Main(), 3);
    QCoreApplication::processEvents();
    EXPECT_EQ(Said(3), "Ann Lee was changed by somebody else meanwhile");
    ClickTab(Main(), 4);
    QCoreApplication::processEvents();
    EXPECT_EQ(Said(4), "Acorn was changed by somebody else meanwhile");
    PressNotice(4);
    EXPECT_EQ(Text("txtCompanyFax") + Text("txtTCPayRate"), "912.00") << "all pages are read again";
    ComeBack();
    EXPECT_EQ(Said(4), "What is stored now was loaded");
}

} // namespace

} // namespace ptk
