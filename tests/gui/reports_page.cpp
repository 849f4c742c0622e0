// The Reports page of the started program: what is offered, what is chosen is what is asked for, and how the outcome is told.
#include "gui/PageFixture.h"
#include "ui/boxes/DateCombo.h"
#include "ui/reports/ReportViewerWindow.h"

namespace ptk {

namespace {

// Listed: Ann Lee (40) and Zorn (42), who each worked 8 hours on 3/3/2003, and Bo Kim (41), who has no shifts.
void AddReportsPageStaff(BulkWriter& writer)
{
    const auto add = [&writer](const char* firstName, const char* lastName, std::int32_t number) {
        EmployeeRow row;
        row.FirstName = firstName;
        row.LastName = lastName;
        row.EmployeeNumber = number;
        row.EmployeeActive = true;
        row.PayRate = 10;
        row.OvertimePayRate = 15;
        return writer.AddEmployee(row);
    };
    const std::int32_t ann = add("Ann", "Lee", 5);
    add("Bo", "Kim", 6);
    for (const std::int32_t id : {ann, add("", "Zorn", 17)}) {
        writer.AddTimeRecord({-1, id, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {16, 0, 0})});
    }
}

ShownBox Failed(const std::string& text)
{
    return {text, "Report Generation Error", Icon::Exclamation, Buttons::Ok};
}

const std::string kFailed = " : An error occurred generating the report: ";

class ReportsPageTest : public PageTest
{
protected:
    ReportsPageTest() : PageTest(AddReportsPageStaff) { ClickTab(Main(), 2); }

    void Choose(const char* report) { The<QComboBox>("cboReports").setCurrentText(report); }
    // By their lines: Bo Kim 0, Ann Lee 1, Zorn 2.
    void Select(std::initializer_list<int> lines)
    {
        auto& list = The<QListView>("lstEmployees");
        list.clearSelection();
        for (const int line : lines) {
            list.selectionModel()->select(list.model()->index(line, 0), QItemSelectionModel::Select);
        }
    }
    int Selected() { return static_cast<int>(The<QListView>("lstEmployees").selectionModel()->selectedRows().size()); }
    std::string Line() { return Find<QLabel>(Find(Main(), "FrameArray(2)"), "lblNotice").text().toStdString(); }
    std::string Dates() { return (The<DateCombo>("cboFromDate").Text() + " - " + The<DateCombo>("cboToDate").Text()).toStdString(); }
    std::string Log() { return ReadBytes(program.logPath); }

    // The open viewers whose title starts so.
    static std::vector<ReportViewerWindow*> Shown(const QString& title)
    {
        std::vector<ReportViewerWindow*> shown;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* viewer = qobject_cast<ReportViewerWindow*>(window);
            if (viewer != nullptr && viewer->isVisible() && viewer->windowTitle().startsWith(title)) {
                shown.push_back(viewer);
            }
        }
        return shown;
    }
};

TEST_F(ReportsPageTest, EachReportOffersItsDatesAndEmployees)
{
    struct Case
    {
        const char* report;
        bool from;
        bool to;
        bool employees;
        const char* dates;
    };
    EXPECT_EQ(The<QComboBox>("cboReports").currentText(), "Timecard");
    for (const Case& c : {Case{"Accountants Review", true, true, true, "03/01/2003 - 03/15/2003"},
                          Case{"Year-To-Date Totals", false, true, true, "01/01/2003 - 03/05/2003"},
                          Case{"Employee Records", false, false, true, "01/01/2003 - 03/05/2003"},
                          Case{"Phone Book", false, false, false, "01/01/2003 - 03/05/2003"},
                          Case{"Timecard", true, true, true, "03/01/2003 - 03/15/2003"}}) {
        SCOPED_TRACE(c.report);
        Choose(c.report);
        EXPECT_EQ(The<QWidget>("cboFromDate").isEnabled(), c.from);
        EXPECT_EQ(The<QWidget>("cmdReportPeriodBack").isEnabled(), c.from);
        EXPECT_EQ(The<QWidget>("cmdSamePeriod").isEnabled(), c.from);
        EXPECT_EQ(The<QWidget>("cboToDate").isEnabled(), c.to);
        EXPECT_EQ(The<QWidget>("lstEmployees").isEnabled(), c.employees);
        EXPECT_EQ(Dates(), c.dates);
        EXPECT_EQ(StatusText(Main()), "Reports : " + std::string(c.report) + " : " + c.dates);
    }
}

TEST_F(ReportsPageTest, TheDatesFollowTyping)
{
    TypeInto(The<DateCombo>("cboFromDate"), "02/20/2003");
    EXPECT_EQ(Dates(), "02/20/2003 - 03/06/2003");
    TypeInto(The<DateCombo>("cboToDate"), "02/28/2003");
    EXPECT_EQ(Dates(), "02/20/2003 - 02/28/2003");
    EXPECT_EQ(StatusText(Main()), "Reports : Timecard : 02/20/2003 - 02/28/2003");
}

TEST_F(ReportsPageTest, SaysWhenAnOfferedDayIsInTwoPeriods)
{
    const auto said = [this] { return The<QLabel>("lblOffered").text().toStdString(); };
    EXPECT_EQ(said(), "03/01/2003 is in the period before, too: 02/15/2003 - 03/01/2003.");
    Press("cmdReportPeriodNext");
    EXPECT_EQ(said(), "");
    Choose("Phone Book");
    Choose("Timecard");
    EXPECT_NE(said(), "");
    TypeInto(The<DateCombo>("cboToDate"), "03/14/2003");
    EXPECT_EQ(said(), "") << "days of one's own";
}

TEST_F(ReportsPageTest, MarksThoseWhoseCardsHaveProblems)
{
    auto& list = The<QListView>("lstEmployees");
    const auto marks = [&] {
        QString marked;
        for (int row = 0; row < 3; ++row) {
            const QModelIndex index = list.model()->index(row, 0);
            marked += index.data(Qt::ToolTipRole).isNull() ? '-' : '!';
        }
        return marked;
    };
    QTest::qWait(600);
    EXPECT_EQ(marks(), "---");
    CJetDB database(program.folder.Path());
    database.DatabaseName(NativePath(program.databasePath).string());
    ASSERT_TRUE(database.ExecuteAction(
        "INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT 42, #3/4/2003 9:00 AM#, #3/4/2003 8:00 AM#"));
    ClickTab(Main(), 1);
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Main(), &activated);
    ClickTab(Main(), 2);
    QTRY_COMPARE(marks(), "--!");
    EXPECT_TRUE(list.model()->index(2, 0).data(Qt::ToolTipRole).toString().startsWith("1 problem\nProblem: The shift that began on"));
    EXPECT_TRUE(list.model()->index(2, 0).data(Qt::AccessibleDescriptionRole).toString().startsWith("1 problem"));
    Select({1, 2});
    Press("cmdGenerate");
    EXPECT_EQ(Line(), "2 reports written. 1 of 2 has problems: F9");
    Press("cmdReportPeriodNext");
    EXPECT_EQ(marks(), "---");
}

TEST_F(ReportsPageTest, StepsByWholePeriodsAndTakesTheTimecardsDates)
{
    Press("cmdReportPeriodNext");
    EXPECT_EQ(Dates(), "03/16/2003 - 03/30/2003");
    Press("cmdReportPeriodBack");
    Press("cmdReportPeriodBack");
    EXPECT_EQ(StatusText(Main()), "Reports : Timecard : 02/14/2003 - 02/28/2003");
    The<DateCombo>("dttbTCFrom").SetText("02/18/2003");
    Press("cmdSamePeriod");
    EXPECT_EQ(StatusText(Main()), "Reports : Timecard : 02/18/2003 - 03/19/2003");
    The<DateCombo>("cboFromDate").SetText("soon");
    Press("cmdReportPeriodNext");
    EXPECT_EQ(Line(), "Cannot move to the selected time period.");
}

TEST_F(ReportsPageTest, IsChosenAndSelectedDeliberately)
{
    auto& reports = The<QComboBox>("cboReports");
    QWheelEvent wheel({5, 5}, reports.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&reports, &wheel);
    EXPECT_EQ(reports.currentText(), "Timecard") << "the wheel passes over it";

    auto& list = The<QListView>("lstEmployees");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), 3);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(The<QLabel>("lblSelected").text(), "0 of 3 selected");
    Press("cmdSelectAll");
    EXPECT_EQ(The<QLabel>("lblSelected").text(), "3 of 3 selected");
    Press("cmdSelectNone");
    EXPECT_EQ(Selected(), 0);
}

TEST_F(ReportsPageTest, NeedsAReport)
{
    The<QComboBox>("cboReports").setCurrentIndex(-1);
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{Failed("You must select a report to generate before continuing.")});
}

TEST_F(ReportsPageTest, WhatIsChosenIsGeneratedAndWhatFailsIsTold)
{
    Select({2, 0, 1});
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{Failed("605" + kFailed + "Employee Time Card : Bo Kim : 3/1/2003 - 3/14/2003")});
    EXPECT_EQ(Line(), "2 of 3 reports complete, 1 failed");
    EXPECT_EQ(Shown("Employee Time Card : ").size(), 3U);
    EXPECT_EQ(program.desktop.pointer, Pointer::Default);

    The<DateCombo>("cboToDate").SetText("soon");
    Select({1});
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{Failed("603" + kFailed + "Employee Time Card : ")});
    Select({});
    Press("cmdGenerate");
    EXPECT_EQ(Line(), "Nobody is selected");

    Choose("Accountants Review");
    Select({2, 1});
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{});
    EXPECT_EQ(Line(), "1 report written");
    const QString text = Shown("Accountant's Review : 3/1/2003 - 3/15/2003").at(0)->findChild<QPlainTextEdit*>("txtReport")->toPlainText();
    EXPECT_LT(text.indexOf("Name:  Ann Lee"), text.indexOf("Name:  Zorn")) << "in the list's order";
    EXPECT_FALSE(text.contains("Kim"));
}

TEST_F(ReportsPageTest, TheViewerBeforeStaysOpenAndKeepsItsReport)
{
    Choose("Employee Records");
    Press("cmdGenerate");
    Press("cmdGenerate");
    ASSERT_EQ(Shown("Employee Records").size(), 2U);
    for (ReportViewerWindow* viewer : Shown("Employee Records")) {
        Click(*viewer, "cmdPrint");
    }
    EXPECT_EQ(program.desktop.requests.size(), 2U);
    EXPECT_TRUE(Shown("Employee Records").empty());
}

TEST_F(ReportsPageTest, AReviewOfAHeldDatabaseTellsWhyAndWhomItLacks)
{
    Choose("Accountants Review");
    Select({1, 2});
    const auto other = HoldDatabase();
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{Failed("710" + kFailed + "Accountant's Review : 3/1/2003 - 3/15/2003")});
    const std::string without = "without Ann Lee, Zorn: the database is in use by another program";
    EXPECT_EQ(Line(), "The report is not complete: error 710, " + without);
    EXPECT_NE(Log().find("Accountant's Review : 3/1/2003 - 3/15/2003: " + Line()), std::string::npos);
    EXPECT_EQ(Find<QLabel>(*Shown("Accountant's Review").at(0), "lblNotice").text().toStdString(),
              "This report is not complete: error 710. W" + without.substr(1) + ".");
}

TEST_F(ReportsPageTest, TheListsFailWithoutABox)
{
    std::filesystem::remove_all(program.folder.Path() + "/reports");
    Choose("Phone Book");
    Press("cmdGenerate");
    EXPECT_EQ(Told(), Boxes{});
    EXPECT_EQ(Line(), "The report was not written: error 503");
    EXPECT_NE(Log().find("Employee Phone Book: The report was not written: error 503"), std::string::npos);
    EXPECT_TRUE(Shown("Employee Phone Book").empty());
}

} // namespace

} // namespace ptk
