// Mending what the check found with one key each, and what is said of a period that was paid.
#include "gui/PageFixture.h"
#include "office/payday/PaydayClosing.h"
#include "ui/boxes/DateTimeBox.h"

namespace ptk {

namespace {

constexpr auto kRemedyRecords = "SELECT EmployeeID || ' ' || StartTime || ' ' || EndTime AS x FROM TimeRecord ORDER BY TimeRecordID";

// Ann Lee (40) usually ends at half past four; she forgot it once, and a night of hers ends before it starts. Bo Kim (41) has no pay rate,
// Cy Orr (42) two sound shifts. Today is 5 March 2003.
void AddTimecardRemediesStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.OvertimePayRate = 15;
    employee.EmployeeActive = true;
    for (const auto& [first, last] : {std::pair{"Ann", "Lee"}, {"Bo", "Kim"}, {"Cy", "Orr"}}) {
        employee.FirstName = first;
        employee.LastName = last;
        employee.EmployeeNumber++;
        employee.PayRate = employee.FirstName == "Bo" ? 0.0F : 10.0F;
        writer.AddEmployee(employee);
    }
    const auto shift = [&](std::int32_t id, std::int16_t day, std::int16_t from, TimeOfDay to) {
        const DateTime end = to.hour == 0 ? DateTime() : DateTime({2003, 2, day}, to);
        writer.AddTimeRecord({-1, id, DateTime({2003, 2, day}, {from, 0, 0}), end});
    };
    for (const std::int16_t day : {std::int16_t{18}, std::int16_t{19}, std::int16_t{20}}) {
        shift(40, day, 8, {16, 30, 0});
    }
    shift(40, 21, 8, {});
    shift(40, 24, 22, {6, 0, 0});
    shift(41, 18, 8, {12, 0, 0});
    shift(42, 18, 8, {12, 0, 0});
    shift(42, 19, 8, {12, 0, 0});
}

class RemediesTest : public PageTest
{
protected:
    RemediesTest() : PageTest(AddTimecardRemediesStaff) { Press("cmdPeriodBack"); } // 18 February to 4 March

    void GenerateFor(const QString& name)
    {
        Pick(The<QComboBox>("cboTCEmployeeName"), name);
        Press("cmdGenTimeRecs");
    }
    QListView& List() { return The<QListView>("lstFindings"); }
    QString Chosen() { return List().currentIndex().data().toString(); }
    QString Button(int number)
    {
        auto& button = The<QPushButton>(("cmdRemedy" + std::to_string(number)).c_str());
        return button.isVisible() ? button.text() : QString();
    }
    QString Line() { return Find<QLabel>(Find(Main(), "FrameArray(1)"), "lblNotice").text(); }
    void Key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QApplication::setActiveWindow(&Main());
        QTest::keyClick(&Main(), static_cast<Qt::Key>(key), modifiers);
    }
    // The button shows itself pressed for a moment first.
    void PressRemedy(int number)
    {
        QSignalSpy pressed(&The<QPushButton>(("cmdRemedy" + std::to_string(number)).c_str()), &QPushButton::clicked);
        Key(Qt::Key_0 + number, Qt::AltModifier);
        EXPECT_TRUE(pressed.wait());
    }
    void ReadOverview()
    {
        Find<QAction>(Main(), "mnuViewOverview").trigger();
        ASSERT_TRUE(QTest::qWaitFor([] { return !Find(Window("OverviewWindow"), "cmdStop").isVisible(); }));
    }
    static QWidget& Window(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->objectName() == name) {
                return *window;
            }
        }
        throw std::runtime_error(name);
    }
    std::shared_ptr<CJetDB> Database()
    {
        auto database = std::make_shared<CJetDB>(program.folder.Path());
        database->DatabaseName(NativePath(program.databasePath).string());
        return database;
    }
};

TEST_F(RemediesTest, OneKeyMendsAndGoesOnToTheNextFindingAndTheNextPerson)
{
    const auto before = Stored(kRemedyRecords);
    ReadOverview();
    Key(Qt::Key_F3);
    EXPECT_EQ(QApplication::focusWidget(), &List());
    EXPECT_TRUE(Chosen().contains("02/21/2003 08:00 AM has no end")) << Chosen().toStdString();
    EXPECT_EQ(Button(1), "&1  End at 04:30 PM: the card has 34.00 hours");
    EXPECT_EQ(Button(2), "&2  End at 05:00 PM: the card has 34.50 hours");
    EXPECT_EQ(Button(3), "&3  Delete the record: the card has 25.50 hours");
    PressRemedy(1);
    EXPECT_EQ(Stored(kRemedyRecords)[3], "40 2003-02-21 08:00:00 2003-02-21 16:30:00");
    EXPECT_EQ(Line(), "Ann Lee: End at 04:30 PM");
    EXPECT_EQ(Button(1), "&1  End at 06:00 AM on 02/25/2003: the card has 42.00 hours");
    PressRemedy(1);
    EXPECT_EQ(Line(), "Ann Lee: End at 06:00 AM on 02/25/2003; Bo Kim's card generated: 1 record");
    EXPECT_EQ(Button(1), "&1  Enter the missing pay rate");
    EXPECT_EQ(Stored("SELECT COUNT(*) || ' ' || COUNT(DISTINCT Step) AS x FROM _Change"), std::vector<std::string>{"2 2"});
    PressRemedy(1);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtPayRate");
    EXPECT_EQ(The<QComboBox>("cboEmployeeName").currentText(), "Bo Kim");
    Find<QAction>(Main(), "mnuEditUndo").trigger();
    Find<QAction>(Main(), "mnuEditUndo").trigger();
    EXPECT_EQ(Stored(kRemedyRecords), before);
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(RemediesTest, WhatDeletesAsksAndWhatSomebodyElseChangedStays)
{
    GenerateFor("Ann Lee");
    The<QToolButton>("cmdFindings").click();
    List().setCurrentIndex(List().model()->index(0, 0));
    PressRemedy(3);
    ASSERT_EQ(Told().at(0).title, "Delete Time Record?");
    EXPECT_EQ(Stored(kRemedyRecords).size(), 8U) << "No was the answer";
    program.desktop.answers = {Answer::Yes};
    program.desktop.reason = "pressed twice";
    The<QPushButton>("cmdRemedy3").click();
    EXPECT_EQ(Stored(kRemedyRecords).size(), 7U);
    EXPECT_EQ(Stored("SELECT Action || ' ' || Reason AS x FROM _Change"), std::vector<std::string>{"delete pressed twice"});
    EXPECT_FALSE(Told().empty());
    EXPECT_EQ(Button(1), "&1  End at 06:00 AM on 02/25/2003: the card has 33.50 hours");
    ASSERT_TRUE(Database()->ExecuteAction("UPDATE TimeRecord SET EndTime = '2003-02-24 23:00:00' WHERE TimeRecordID = 5"));
    PressRemedy(1);
    EXPECT_EQ(Told().at(0).title, "Database Save Error");
    EXPECT_EQ(Stored("SELECT EndTime AS x FROM TimeRecord WHERE TimeRecordID = 5"), std::vector<std::string>{"2/24/2003 11:00:00 PM"});
    EXPECT_EQ(The<QToolButton>("cmdFindings").text(), "No problems or notices") << "as it is stored now";
}

TEST_F(RemediesTest, APaidPeriodSaysSoAsksWhyAndTellsWhatWasChangedSince)
{
    ASSERT_EQ(ClosePayday(Database(), {{DateTime({2003, 2, 18}), DateTime({2003, 3, 4})}, {42}, program.clock.Now()}).size(), 1U);
    GenerateFor("Cy Orr");
    EXPECT_EQ(The<QLabel>("lblPaid").text(), "Paid on 03/05/2003 08:05 AM: 8.00 + 0.00 hours, 80.00");
    EXPECT_EQ(The<QToolButton>("cmdFindings").text(), "No problems or notices");
    {
        const ExpectedModal editor([](QDialog& window) {
            EXPECT_EQ(Find<QLabel>(window, "lblOwner").text(), "For Cy Orr\nPaid on 03/05/2003 08:05 AM");
            Type(Find<DateTimeBox>(window, "dttbEndTime"), "13");
            Click(window, "cmdSave");
            EXPECT_TRUE(window.isVisible()) << "it asks why";
            auto& reason = Find<QComboBox>(window, "cboReason");
            EXPECT_EQ(QApplication::focusWidget(), &reason);
            reason.setEditText(" she stayed ");
            QTest::keyClick(&reason, Qt::Key_Return);
        });
        The<QTableView>("grdTimeRecs").selectRow(1);
        Press("cmdTCEdit");
    }
    EXPECT_EQ(Stored("SELECT Reason AS x FROM _Change WHERE TableName = 'TimeRecord'"), std::vector<std::string>{"she stayed"});
    The<QToolButton>("cmdFindings").click();
    List().setCurrentIndex(List().model()->index(0, 0));
    EXPECT_EQ(Chosen(), "Paid 8.00 hours, now 9.00: +10.00 owed.");
    EXPECT_EQ(Button(1), "&1  Show what was changed since it was paid");
    QApplication::setActiveWindow(&Main());
    Find<QAction>(Main(), "mnuViewHistory").trigger();
    auto& history = Window("HistoryWindow");
    EXPECT_EQ(Find<QCheckBox>(history, "chkHistoryScope").text(), "&Only what was changed since 02/18/2003 - 03/04/2003 was paid");
    EXPECT_EQ(Find<QTableView>(history, "grdHistory").model()->rowCount(), 1);
    history.close();
    program.desktop.answers = {Answer::No};
    The<QTableView>("grdTimeRecs").selectRow(0);
    Press("cmdTCDelete");
    EXPECT_TRUE(program.desktop.reasons.back().wanted);
    EXPECT_EQ(program.desktop.reasons.back().offered, std::vector<std::string>{"she stayed"});
    Press("cmdTCPrint");
    const std::string report = ReadBytes(program.folder.Path() + "\\reports\\3_0218_0305_2003_time_card.txt");
    EXPECT_TRUE(report.ends_with("Date\r\n\r\nPaid on 03/05/2003 08:05 AM: 8.00 + 0.00 hours, 80.00\r\n")) << report;
}

} // namespace

} // namespace ptk
