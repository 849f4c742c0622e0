// The Reports page over a started program: what is chosen is what is written, shown and told.
#include "model/CEmployeeList.h"
#include "platform/Text.h"
#include "startup/StartupFixture.h"
#include "store/CTimeRecSQLConverter.h"
#include "ui/OpenReports.h"
#include "ui/pages/PageHost.h"
#include "ui/pages/ReportsPage.h"
#include "ui/widgets/DateCombo.h"
#include "ui/widgets/EmployeeModels.h"

#include <QtTest>
#include <QtWidgets>

namespace ptk {

namespace {

class Host final : public PageHost
{
public:
    Host(std::shared_ptr<CController> controller, ptk::Desktop& desktop, const ptk::Clock& clock, const std::string& programFolder)
        : m_controller(std::move(controller)), m_desktop(desktop), m_clock(clock), m_reports(*this, programFolder)
    {
        m_models.SetEmployees(m_controller->EmployeeList());
    }

    std::shared_ptr<CController> Controller() const override { return m_controller; }
    ptk::Desktop& Desktop() const override { return m_desktop; }
    const ptk::Clock& Clock() const override { return m_clock; }
    const DesktopWindow& AsDesktopWindow() const override { return m_window; }
    bool SetStatusText(const std::string& name, const std::string& identifier) override
    {
        status = name + " : " + identifier;
        return true;
    }
    void ErrorNumber(std::int32_t) override {}
    void Log(const std::string& line) override { logged.push_back(line); }
    std::int32_t EventSource() const override { return eventsource::None; }
    void EventSource(std::int32_t) override {}
    PeriodTexts TimeCardPeriod() const override { return {"02/18/2003", "03/04/2003"}; }
    ptk::EmployeeModels& EmployeeModels() const override { return m_models; }
    OpenReports& Reports() const override { return m_reports; }

    std::string status;
    std::vector<std::string> logged;

private:
    std::shared_ptr<CController> m_controller;
    ptk::Desktop& m_desktop;
    const ptk::Clock& m_clock;
    DesktopWindow m_window;
    mutable ptk::EmployeeModels m_models;
    mutable OpenReports m_reports;
};

// Listed: Bo Kim, who has no shifts, Ann Lee and Zorn, who each worked 8 hours on 3/3/2003. Today is 3/5/2003.
class ReportsPageTest : public StartupFixture
{
protected:
    void SetUp() override
    {
        AddEmployee("Ann", "Lee", 5, true);
        AddEmployee("Bo", "Kim", 6, false);
        AddEmployee("", "Zorn", 17, true);
        program.Start();
        host = std::make_unique<Host>(program.Controller(), desktop, clock, folder.Path());
        page = std::make_unique<ReportsPage>(*host);
        page->FillReportList();
        page->EnableGenerate();
    }
    void TearDown() override
    {
        page = nullptr;
        host = nullptr;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ScriptedMain::Close(Controller());
    }

    void AddEmployee(const char* firstName, const char* lastName, std::int32_t number, bool worked)
    {
        EmployeeRow employee;
        employee.FirstName = firstName;
        employee.LastName = lastName;
        employee.EmployeeNumber = number;
        employee.EmployeeActive = true;
        CJetDB database(folder.Path());
        ASSERT_TRUE(database.AddNewEmployee(employee));
        const TimeRecordRow shift{-1, ++m_lastID, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {16, 0, 0})};
        if (worked) {
            ASSERT_TRUE(database.ExecuteAction(CTimeRecSQLConverter().ToSQL(&shift)));
        }
    }

    template <typename Control>
    Control& Find(const char* name)
    {
        return *page->findChild<Control*>(name);
    }
    void Choose(const char* report) { Find<QComboBox>("cboReports").setCurrentText(report); }
    void SelectLine(int row)
    {
        auto& list = Find<QListView>("lstEmployees");
        list.selectionModel()->select(list.model()->index(row, 0), QItemSelectionModel::Select);
    }
    void SelectEveryone() { QTest::mouseClick(&Find<QPushButton>("cmdSelectAll"), Qt::LeftButton); }
    int Selected() { return static_cast<int>(Find<QListView>("lstEmployees").selectionModel()->selectedRows().size()); }
    void Generate() { QTest::mouseClick(&Find<QPushButton>("cmdGenerate"), Qt::LeftButton); }
    QString Line() { return Find<QLabel>("lblNotice").text(); }
    QString Dates() { return Find<DateCombo>("cboFromDate").Text() + " - " + Find<DateCombo>("cboToDate").Text(); }

    // The texts of the open viewers whose title starts so.
    static QStringList Shown(const QString& title)
    {
        QStringList texts;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->windowTitle().startsWith(title)) {
                texts << window->findChild<QPlainTextEdit*>("txtReport")->toPlainText();
            }
        }
        return texts;
    }
    bool Written(const char* file) const { return std::filesystem::is_regular_file(folder.Path() + "/reports/" + file); }

    std::unique_ptr<Host> host;
    std::unique_ptr<ReportsPage> page;

private:
    std::int32_t m_lastID = 39; // the administrator's
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
    EXPECT_TRUE(page->SelectFirstReport());
    EXPECT_EQ(host->status, "Reports : Timecard : 03/01/2003 - 03/15/2003");
    for (const Case& c : {Case{"Accountants Review", true, true, true, "03/01/2003 - 03/15/2003"},
                          Case{"Year-To-Date Totals", false, true, true, "01/01/2003 - 03/05/2003"},
                          Case{"Employee Records", false, false, true, "01/01/2003 - 03/05/2003"},
                          Case{"Phone Book", false, false, false, "01/01/2003 - 03/05/2003"},
                          Case{"Timecard", true, true, true, "03/01/2003 - 03/15/2003"}}) {
        SCOPED_TRACE(c.report);
        Choose(c.report);
        EXPECT_EQ(Find<QWidget>("cboFromDate").isEnabled(), c.from);
        EXPECT_EQ(Find<QWidget>("cboToDate").isEnabled(), c.to);
        EXPECT_EQ(Find<QWidget>("lstEmployees").isEnabled(), c.employees);
        EXPECT_EQ(Dates(), c.dates);
        EXPECT_EQ(host->status, "Reports : " + std::string(c.report) + " : " + c.dates);
    }
    EXPECT_EQ(Find<QComboBox>("cboReports").count(), 5);
}

TEST_F(ReportsPageTest, TheLastDayFollowsTheFirst)
{
    Choose("Timecard");
    auto& from = Find<DateCombo>("cboFromDate");
    from.lineEdit()->selectAll();
    QTest::keyClicks(from.lineEdit(), "02/20/2003");
    EXPECT_EQ(Dates(), "02/20/2003 - 03/06/2003");
    EXPECT_EQ(host->status, "Reports : Timecard : 02/20/2003 - 03/06/2003");
    auto& to = Find<DateCombo>("cboToDate");
    to.lineEdit()->selectAll();
    QTest::keyClicks(to.lineEdit(), "02/28/2003");
    EXPECT_EQ(Dates(), "02/20/2003 - 02/28/2003");
    EXPECT_EQ(host->status, "Reports : Timecard : 02/20/2003 - 02/28/2003");
}

TEST_F(ReportsPageTest, StepsByWholePeriodsAndTakesTheTimecardsDates)
{
    Choose("Timecard");
    Find<QPushButton>("cmdReportPeriodNext").click();
    EXPECT_EQ(Dates(), "03/16/2003 - 03/30/2003");
    EXPECT_EQ(host->status, "Reports : Timecard : 03/16/2003 - 03/30/2003");
    Find<QPushButton>("cmdReportPeriodBack").click();
    Find<QPushButton>("cmdReportPeriodBack").click();
    EXPECT_EQ(Dates(), "02/14/2003 - 02/28/2003");
    Find<QPushButton>("cmdSamePeriod").click();
    EXPECT_EQ(host->status, "Reports : Timecard : 02/18/2003 - 03/04/2003");
    Find<DateCombo>("cboFromDate").SetText("soon");
    Find<QPushButton>("cmdReportPeriodNext").click();
    EXPECT_EQ(Line(), "Cannot move to the selected time period.");
    Choose("Year-To-Date Totals");
    EXPECT_FALSE(Find<QPushButton>("cmdReportPeriodBack").isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdSamePeriod").isEnabled());
}

TEST_F(ReportsPageTest, TheWheelPassesOverTheReportList)
{
    Choose("Timecard");
    auto& reports = Find<QComboBox>("cboReports");
    QWheelEvent wheel({5, 5}, reports.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&reports, &wheel);
    EXPECT_EQ(reports.currentText(), "Timecard");
}

TEST_F(ReportsPageTest, SaysWhomItWasFor)
{
    Choose("Timecard");
    EXPECT_EQ(Find<QLabel>("lblSelected").text(), "0 of 3 selected");
    Generate();
    EXPECT_EQ(Line(), "Nobody is selected");
    SelectLine(1);
    SelectLine(2);
    EXPECT_EQ(Find<QLabel>("lblSelected").text(), "2 of 3 selected");
    Generate();
    EXPECT_EQ(Line(), "2 reports written");
    Choose("Employee Records");
    Find<QPushButton>("cmdSelectNone").click();
    Generate();
    EXPECT_EQ(Line(), "Nobody is selected: the report written is empty");
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(ReportsPageTest, NeedsAReport)
{
    Generate();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: You must select a report to generate before continuing."});
    EXPECT_EQ(desktop.boxes[0].icon, Icon::Exclamation);
}

TEST_F(ReportsPageTest, OneTimeCardForEachAndAFailureStopsNoOther)
{
    Choose("Timecard");
    SelectEveryone();
    Generate();
    EXPECT_EQ(Shown("Employee Time Card : ").size(), 3);
    EXPECT_EQ(Line(), "2 of 3 reports complete, 1 failed");
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: 605 : An error occurred generating the report: "
                                                "Employee Time Card : Bo Kim : 3/1/2003 - 3/14/2003"});
    EXPECT_TRUE(Written("5_0301_0315_2003_time_card.txt"));
    EXPECT_TRUE(Written("6_0301_0315_2003_time_card.txt"));
    EXPECT_TRUE(Written("17_0301_0315_2003_time_card.txt"));
    EXPECT_EQ(desktop.pointer, Pointer::Default);
}

TEST_F(ReportsPageTest, OneReviewForAllSelected)
{
    Choose("Accountants Review");
    SelectLine(2);
    SelectLine(1);
    Generate();
    EXPECT_TRUE(desktop.boxes.empty());
    const QStringList texts = Shown("Accountant's Review : 3/1/2003 - 3/15/2003");
    ASSERT_EQ(texts.size(), 1);
    EXPECT_LT(texts[0].indexOf("Name:  Ann Lee"), texts[0].indexOf("Name:  Zorn"));
    EXPECT_FALSE(texts[0].contains("Kim"));

    SelectLine(0);
    Generate();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: 710 : An error occurred generating the report: "
                                                "Accountant's Review : 3/1/2003 - 3/15/2003"});
    EXPECT_EQ(Shown("Accountant's Review").size(), 2) << "the viewer before stays open";
}

TEST_F(ReportsPageTest, AReviewOfAHeldDatabaseTellsWhyAndWhomItLacks)
{
    Choose("Accountants Review");
    SelectLine(1);
    SelectLine(2);
    CJetDB other(folder.Path());
    ASSERT_TRUE(other.OpenDB());
    Generate();
    const std::string without = "without Ann Lee, Zorn: the database is in use by another program";
    EXPECT_EQ(Line().toStdString(), "The report is not complete: error 710, " + without);
    EXPECT_EQ(host->logged.back(), "Accountant's Review : 3/1/2003 - 3/15/2003: " + Line().toStdString());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle().startsWith("Accountant's")) {
            EXPECT_EQ(window->findChild<QLabel*>("lblNotice")->text().toStdString(),
                      "This report is not complete: error 710. W" + without.substr(1) + ".");
        }
    }
}

TEST_F(ReportsPageTest, TotalsRecordsAndPhoneBook)
{
    Choose("Year-To-Date Totals");
    SelectLine(1);
    Generate();
    EXPECT_TRUE(Written("5_0101_0305_2003_ytd_totals.txt"));

    Choose("Employee Records");
    Generate();
    ASSERT_EQ(Shown("Employee Records").size(), 1);
    EXPECT_TRUE(Shown("Employee Records")[0].contains("Last Name:  Lee"));
    EXPECT_FALSE(Shown("Employee Records")[0].contains("Zorn"));

    Choose("Phone Book");
    Generate();
    ASSERT_EQ(Shown("Employee Phone Book").size(), 1);
    for (const char* name : {"Kim, Bo", "Lee, Ann", "Zorn"}) {
        EXPECT_TRUE(Shown("Employee Phone Book")[0].contains(name)) << name;
    }
    EXPECT_FALSE(Shown("Employee Phone Book")[0].contains("administrator"));
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(ReportsPageTest, ADateThatIsNoneIsTheReportsToRefuse)
{
    Choose("Timecard");
    SelectLine(1);
    Find<DateCombo>("cboToDate").SetText("next week");
    Generate();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: 603 : An error occurred generating the report: "
                                                "Employee Time Card : "});
    EXPECT_EQ(Find<DateCombo>("cboToDate").Text(), "next week");
}

TEST_F(ReportsPageTest, AnEmployeeWhoIsNoMoreIsRefused)
{
    Choose("Timecard");
    SelectLine(1);
    Controller().EmployeeList()->Destroy();
    Generate();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: 602 : An error occurred generating the report: "
                                                "Employee Time Card : "});
}

TEST_F(ReportsPageTest, WithoutTheFolderNoViewerOpens)
{
    std::filesystem::remove_all(folder.Path() + "/reports");
    Choose("Accountants Review");
    Generate();
    EXPECT_EQ(Boxes(), std::vector<std::string>{"Report Generation Error: 503 : An error occurred generating the report: "
                                                "Accountant's Review : 3/1/2003 - 3/15/2003"});
    Choose("Phone Book");
    Generate();
    EXPECT_EQ(desktop.boxes.size(), 1U) << "the lists fail without a box";
    EXPECT_EQ(Line(), "The report was not written: error 503");
    EXPECT_EQ(host->logged.back(), "Employee Phone Book: The report was not written: error 503");
    EXPECT_TRUE(Shown("Accountant's").empty() && Shown("Employee Phone Book").empty());
}

TEST_F(ReportsPageTest, SelectsAllAndNoneByKeyboard)
{
    Choose("Timecard");
    auto& list = Find<QListView>("lstEmployees");
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(), 3);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Selected(), 0);
}

} // namespace

} // namespace ptk
