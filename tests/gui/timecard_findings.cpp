// What the check says on the Timecards page, and the limits on the Options page that it goes by.
#include "gui/PageFixture.h"
#include "ui/boxes/DateTimeBox.h"

namespace ptk {

namespace {

// Ann Lee (40): a shift of which the end lies before the start, an empty one, and one over the period's end that overlaps the one before.
// Bo Kim (41) has two sound ones. Today is 5 March 2003.
void AddTimecardFindingsStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.PayRate = 10;
    employee.OvertimePayRate = 15;
    employee.EmployeeActive = true;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Bo", "Kim"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        writer.AddEmployee(employee);
    }
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 3}, {17, 0, 0}), DateTime({2003, 3, 3}, {8, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 4}, {8, 0, 0}), DateTime({2003, 3, 4}, {8, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 4}, {20, 0, 0}), DateTime({2003, 3, 5}, {0, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 4}, {22, 0, 0}), DateTime({2003, 3, 5}, {6, 0, 0})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {12, 0, 0})});
    writer.AddTimeRecord({-1, 41, DateTime({2003, 3, 4}, {8, 0, 0}), DateTime({2003, 3, 4}, {12, 0, 0})});
}

class FindingsTest : public PageTest
{
protected:
    FindingsTest() : PageTest(AddTimecardFindingsStaff) { Press("cmdPeriodBack"); } // 18 February to 4 March

    void GenerateFor(const QString& name)
    {
        Pick(The<QComboBox>("cboTCEmployeeName"), name);
        Press("cmdGenTimeRecs");
    }
    QToolButton& Line() { return The<QToolButton>("cmdFindings"); }
    QListView& List() { return The<QListView>("lstFindings"); }
    QTableView& Grid() { return The<QTableView>("grdTimeRecs"); }
    QWidget& Page(int tab) { return Find(Main(), QString("FrameArray(%1)").arg(tab)); }
    QString Notice(int tab = 1) { return Find<QLabel>(Page(tab), "lblNotice").text(); }
    void TakeUpOffer() { Find<QToolButton>(Page(1), "cmdNotice").click(); }
    void Choose(int row)
    {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, List().visualRect(List().model()->index(row, 0)).center());
    }
    int ChosenRow() { return Grid().selectionModel()->hasSelection() ? Grid().currentIndex().row() : -1; }
    // The rows that are tinted for one sentence.
    std::vector<int> Marked()
    {
        std::vector<int> rows;
        for (int row = 0; row < Grid().model()->rowCount(); ++row) {
            if (Grid().model()->index(row, 0).data(Qt::BackgroundRole).isValid()) {
                rows.push_back(row);
            }
        }
        return rows;
    }
    static void End(QDialog& editor, const char* date, const char* time)
    {
        Type(Find<DateTimeBox>(editor, "dttbEndDate"), date);
        Type(Find<DateTimeBox>(editor, "dttbEndTime"), time);
        Click(editor, "cmdSave");
    }
};

TEST_F(FindingsTest, AreCountedListedAndFoundInTheGridOrElsewhere)
{
    GenerateFor("Ann Lee");
    EXPECT_EQ(Line().text(), "3 problems, 1 notice");
    EXPECT_FALSE(List().isVisible());
    QTest::keyClick(&Line(), Qt::Key_Space);
    ASSERT_TRUE(List().isVisible());
    ASSERT_EQ(List().model()->rowCount(), 4);
    EXPECT_EQ(List().model()->index(0, 0).data(Qt::AccessibleTextRole),
              "Problem: The shift that began on 03/03/2003 05:00 PM ends before that, on 03/03/2003 08:00 AM, and counts nothing.");
    Choose(1);
    EXPECT_EQ(ChosenRow(), 1);
    EXPECT_EQ(Notice(), "");
    Choose(2);
    EXPECT_EQ(ChosenRow(), 2) << "of the overlapping ones the one on the card";
    EXPECT_EQ(Notice(), "One lies on 03/04/2003 - 03/05/2003, not on this card.");
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(Find<DateTimeBox>(window, "dttbStartTime").text(), "10:00:00 PM");
            Click(window, "cmdCancel");
        });
        TakeUpOffer();
    }
    {
        const ExpectedModal editor([](QDialog& window) { End(window, "3/5", "12a"); });
        List().setCurrentIndex(List().model()->index(3, 0));
        QTest::keyClick(&List(), Qt::Key_Return); // the shift that crosses the end
    }
    EXPECT_EQ(Line().text(), "2 problems, 1 notice") << "it is on the card by now, and still overlaps";
    EXPECT_EQ(Grid().model()->rowCount(), 4);
    Choose(2);
    EXPECT_EQ(ChosenRow(), 2);
    EXPECT_EQ(Marked(), (std::vector<int>{2, 3})) << "both of the overlap";
    QTest::keyClick(&Grid(), Qt::Key_Down);
    EXPECT_EQ(Marked(), (std::vector<int>{2, 3}));
    QTest::keyClick(&Grid(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Marked(), std::vector<int>()) << "another row was chosen";
    Choose(2);
    program.desktop.answers = {Answer::Yes};
    QTest::keyClick(&List(), Qt::Key_Delete);
    EXPECT_EQ(Told().at(0).title, "Delete Time Record?");
    EXPECT_EQ(Line().text(), "1 problem, 1 notice");
    EXPECT_TRUE(List().isVisible());
    Press("cmdPeriodBack");
    EXPECT_FALSE(Line().isVisible() || List().isVisible());
}

TEST_F(FindingsTest, EnterOnASentenceEditsAndOneWithoutRecordsLeavesNothingChosen)
{
    CJetDB database(program.folder.Path());
    database.DatabaseName(NativePath(program.databasePath).string());
    ASSERT_TRUE(database.ExecuteAction("UPDATE Employee SET PayRate = 0 WHERE EmployeeID = 40"));
    emit Main().SharedRecords().ReadAgainWanted();
    GenerateFor("Ann Lee");
    Line().click();
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(Find<DateTimeBox>(window, "dttbStartTime").text(), "05:00:00 PM");
            Click(window, "cmdCancel");
        });
        Choose(1);
        QTest::keyClick(&List(), Qt::Key_Return);
    }
    EXPECT_EQ(ChosenRow(), 0);
    const auto sentences = List().model()->match(List().model()->index(0, 0), Qt::DisplayRole, "have no pay rate", 1, Qt::MatchContains);
    ASSERT_EQ(sentences.size(), 1);
    Choose(sentences.front().row());
    EXPECT_EQ(ChosenRow(), -1) << "it names no record that could be deleted";
    QTest::keyClick(&List(), Qt::Key_Delete);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(FindingsTest, HoursAreToldInWordsAndTheirPictureIsRemembered)
{
    auto& hours = The<QListView>("lstHours");
    EXPECT_TRUE(hours.isVisible());
    GenerateFor("Ann Lee");
    ASSERT_EQ(hours.model()->rowCount(), 15 + 1);
    EXPECT_EQ(hours.model()->index(15, 0).data(Qt::AccessibleTextRole),
              "Week from 03/02/2003: 12.00 hours, 0.00 above 40, 4.00 paid as overtime");
    EXPECT_EQ(hours.model()->index(14, 0).data(Qt::ToolTipRole), "Tuesday 03/04/2003: 4.00 hours, 4.00 regular and 0.00 overtime");
    Find<QAction>(Main(), "mnuViewHours").trigger();
    EXPECT_FALSE(hours.isVisible());
    EXPECT_FALSE(QSettings().value("timecards/hours").toBool());
    Find<QAction>(Main(), "mnuViewHours").trigger();
    EXPECT_EQ(hours.model()->rowCount(), 16);
}

TEST_F(FindingsTest, ARecordThatCannotBeReadIsNamedAndMended)
{
    CJetDB database(program.folder.Path());
    database.DatabaseName(NativePath(program.databasePath).string());
    ASSERT_TRUE(database.ExecuteAction("UPDATE TimeRecord SET EndTime = '2003-03-04 5 PM' WHERE TimeRecordID = 6"));
    GenerateFor("Bo Kim");
    EXPECT_EQ(Told(), (Boxes{{"There are no time records found for this employee during this period.", "Timecard Generation Error",
                              Icon::Information, Buttons::Ok}}));
    EXPECT_EQ(Line().text(), "1 problem");
    EXPECT_EQ(The<QLabel>("lblFindings").text(),
              "Record 6, which begins on 03/04/2003 08:00 AM, cannot be read: it has the end \"2003-03-04 5 PM\".");
    EXPECT_NE(ReadBytes(program.logPath).find("2003-03-04 5 PM"), std::string::npos);
    EXPECT_EQ(The<QListView>("lstHours").model()->rowCount(), 16) << "the other shift is there";
    const ExpectedModal editor([](QDialog& window) { End(window, "3/4", "5p"); });
    Line().click();
    Choose(0);
    TakeUpOffer();
    EXPECT_EQ(Line().text(), "No problems or notices");
    EXPECT_EQ(Grid().model()->rowCount(), 2);
}

TEST_F(FindingsTest, TheLimitsAreAppliedCancelledAndFollowedAtOnce)
{
    GenerateFor("Ann Lee");
    ClickTab(Main(), 5);
    auto& hours = The<QLineEdit>("txtLongShift");
    EXPECT_EQ(hours.text(), "16");
    Type(hours, "8");
    Press("cmdCancelOptions");
    EXPECT_EQ(hours.text(), "16");
    Type(hours, "many");
    Type(The<QLineEdit>("txtPeriodLength"), "3");
    Press("cmdApplyOptions");
    EXPECT_EQ(Told().size(), 1U);
    EXPECT_EQ(Stored("SELECT period_length AS x FROM _System"), std::vector<std::string>{"14"}) << "nothing else is stored either";
    EXPECT_EQ(Notice(5), "The longest usual shift is a whole number of hours from 1 to 999");
    Type(hours, "3");
    Type(The<QLineEdit>("txtPeriodLength"), "14");
    The<QCheckBox>("chkShowNotices").click();
    Press("cmdApplyOptions");
    EXPECT_EQ(Told(), Boxes());
    EXPECT_EQ(Stored("SELECT long_shift_hours || show_notices AS x FROM _CheckLimits"), std::vector<std::string>{"30"});
    ClickTab(Main(), 1);
    EXPECT_EQ(Line().text(), "4 problems, 1 notice (notices are not shown)") << "four hours are long by now";
    EXPECT_EQ(List().model()->rowCount(), 4);
    EXPECT_EQ(Grid().model()->rowCount(), 3);
}

} // namespace

} // namespace ptk
