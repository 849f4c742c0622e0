// The frame of the main window: menus, tabs, status bar, options and the ways out.
#include "gui/GuiFixture.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "ui/boxes/DateTimeBox.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/work/WindowPlace.h"

#include <gmock/gmock.h>

namespace ptk {

namespace {

using Boxes = std::vector<ShownBox>;
const ShownBox kNotApplied{"An error occurred while updating the system options in the database.", "Update Options Error",
                           Icon::Exclamation, Buttons::Ok};
const ShownBox kOptionsNotSaved{"An error occurred while saving program options. Please check the program options on next use.",
                                "Update Options Error", Icon::Exclamation, Buttons::Ok};
const ShownBox kNoGuide{"File: ...\\documentation\\PTKAdminUserGuide.doc\r\n"
                        "The path to the User's Guide is invalid or not able to be opened by Windows.",
                        "User's Guide Open Error", Icon::Exclamation, Buttons::Ok};

class MainWindowTest : public testing::Test
{
protected:
    void SetUp() override { program.LogIn(); }

    FController& Main() { return program.Main(); }
    DateTimeBox& StartTime() { return Find<DateTimeBox>(Main(), "dttbAutoShiftStartTime"); }
    DateTimeBox& EndTime() { return Find<DateTimeBox>(Main(), "dttbAutoShiftEndTime"); }
    QLineEdit& Length() { return Find<QLineEdit>(Main(), "txtPeriodLength"); }
    bool IsShown(int page) { return Find(Main(), QString("FrameArray(%1)").arg(page)).isVisible(); }

    GuiProgram program;
};

TEST_F(MainWindowTest, ComesUpOnTheTimecards)
{
    EXPECT_EQ(Main().windowTitle(), "Quillmarsh - Adminstrator");
    EXPECT_EQ(Main().ErrorNumber(), 0);
    EXPECT_TRUE(IsShown(1));
    EXPECT_EQ(Find<QLabel>(Main(), "StatusBarPanel1").text(), "PTK - Administrator");
}

TEST_F(MainWindowTest, TurnsToTheClickedPageAndNamesIt)
{
    struct Page
    {
        int tab;
        const char* caption;
        const char* frame;
        const char* status;
    };
    for (const Page& page : {Page{2, "Reports", " Generate Report ", "Reports"},
                             {3, "Employees", "  Employee Information  ", "Employee Information"},
                             {4, "Company", "  Company Information   ", "Company Information"},
                             {5, "Options", " General Program Options ", "System Options"},
                             {1, "Timecards", " Generate Time Card ", "Timecards"}}) {
        ClickTab(Main(), page.tab);
        EXPECT_EQ(Find<QTabBar>(Main(), "TabStrip").tabText(page.tab - 1), page.caption);
        EXPECT_EQ(Find<QGroupBox>(Main(), QString("FrameArray(%1)").arg(page.tab)).title(), page.frame);
        EXPECT_EQ(StatusText(Main()), page.status);
        for (int other = 1; other <= 5; ++other) {
            EXPECT_EQ(IsShown(other), other == page.tab) << page.tab;
        }
    }
}

TEST_F(MainWindowTest, AClickOnTheShownTabChangesNothing)
{
    ClickTab(Main(), 2);
    Main().SetStatusText("Reports", "Phone Book");
    ClickTab(Main(), 2);
    EXPECT_EQ(StatusText(Main()), "Reports : Phone Book");
    EXPECT_TRUE(IsShown(2));
}

TEST_F(MainWindowTest, TheFirstClickOnTheFirstTabNamesIt)
{
    ClickTab(Main(), 1);
    EXPECT_EQ(StatusText(Main()), "Timecards");
}

TEST_F(MainWindowTest, OtherButtonsAndKeysTurnPagesAsTheyShould)
{
    auto& strip = Find<QTabBar>(Main(), "TabStrip");
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&strip, button, {}, strip.tabRect(3).center());
        EXPECT_TRUE(IsShown(1)) << "only a left click turns the page";
    }
    QTest::keyClick(Main().windowHandle(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(IsShown(5));
    QTest::keyClick(Main().windowHandle(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(IsShown(1));
}

TEST_F(MainWindowTest, WithoutAControllerItComesUpEmpty)
{
    FController bare(program.folder.Path(), program.desktop, program.clock);
    bare.Controller(nullptr);
    EXPECT_EQ(bare.ErrorNumber(), 211);
    EXPECT_TRUE(bare.isVisible());
    EXPECT_EQ(StatusText(bare), "<object name : ID>");
}

TEST_F(MainWindowTest, ShowsTheAboutBox)
{
    const ExpectedModal about([](QDialog& window) {
        EXPECT_EQ(window.windowTitle(), "About PTK - Administrator 1.0");
        EXPECT_EQ(Find<QLabel>(window, "Label1").text(), "Quillmarsh -  Administrator 1.0");
        Click(window, "cmdOK");
    });
    Find<QAction>(Main(), "mnuHelpAbout").trigger();
}

TEST_F(MainWindowTest, ListsTheKeysOfItsMenusAndOfTheRest)
{
    const ExpectedModal list([](QDialog& window) {
        const auto& table = Find<QTableWidget>(window, "grdShortcuts");
        const auto keysOf = [&](const QString& what) {
            const auto found = table.findItems(what, Qt::MatchExactly);
            return found.size() == 1 ? table.item(found.first()->row(), 1)->text() : QString::number(found.size());
        };
        EXPECT_EQ(keysOf("Payday Overview"), "F9");
        EXPECT_EQ(keysOf("Undo"), "Ctrl+Z");
        EXPECT_EQ(keysOf("Delete the chosen record"), "Delete");
        Click(window, "cmdClose");
    });
    Find<QAction>(Main(), "mnuHelpShortcuts").trigger();
}

TEST_F(MainWindowTest, OpensTheGuideAndTellsOnlyWhenItIsMissing)
{
    program.desktop.shellCodes = {ShellSuccess + 1, ShellFileNotFound, ShellNoProgram, ShellSuccess + 1, ShellNoProgram, ShellNoProgram};
    program.desktop.refusal = "no program is set up for this kind of document";
    auto& guide = Find<QAction>(Main(), "mnuHelpContents");
    guide.trigger();
    EXPECT_EQ(program.desktop.Take(), Boxes());
    guide.trigger();
    EXPECT_EQ(program.desktop.Take(), Boxes{kNoGuide});
    auto& line = *Find(Main(), "FrameArray(1)").findChild<QLabel*>("lblNotice");
    guide.trigger();
    EXPECT_EQ(line.text(), "") << "its page opened";
    guide.trigger();
    EXPECT_EQ(program.desktop.Take(), Boxes());
    EXPECT_EQ(line.text(), "The user's guide could not be opened: no program is set up for this kind of document");
    const std::string document = program.folder.Path() + "/documentation/PTKAdminUserGuide.doc";
    const std::string page = program.folder.Path() + "/documentation/PTKAdminUserGuide.html";
    EXPECT_THAT(ReadBytes(program.logPath), testing::EndsWith("Error: 902 : The user's guide is missing: " + document +
                                                              "\r\nError: 0 : " + line.text().toStdString() + "\r\n"));
    std::vector<std::string> asked;
    for (const ShellRequest& request : program.desktop.requests) {
        asked.push_back(request.path);
    }
    EXPECT_EQ(asked, (std::vector{document, document, document, page, document, page}));
}

TEST_F(MainWindowTest, AppliesOptionsThatTheNextStartFinds)
{
    EXPECT_EQ(Length().text(), "14");
    EXPECT_EQ(StartTime().text(), "08:00:00 AM");
    EXPECT_EQ(EndTime().text(), "05:00:00 PM");
    ClickTab(Main(), 5);
    Type(Length(), "7");
    Type(StartTime(), "715");
    Type(EndTime(), "4.45p");
    EXPECT_EQ(EndTime().text(), "04:45:00 PM");
    EXPECT_EQ(Find<QLabel>(Main(), "lblPeriodExample").text(), "A period has 8 days, for example 03/05/2003 - 03/12/2003");
    Click(Main(), "cmdApplyOptions");
    EXPECT_EQ(program.desktop.Take(), Boxes());
    EXPECT_EQ(Find<NoticeLine>(Find(Main(), "FrameArray(5)"), "notice").Text(), "Options applied");

    CSystemOptions stored;
    ASSERT_TRUE(program.Controller()->PTKDatabase()->OpenDB());
    stored.PTKDatabase(program.Controller()->PTKDatabase());
    ASSERT_TRUE(stored.Load());
    EXPECT_EQ(stored.PeriodLength(), 7);
    EXPECT_EQ(stored.AutoShiftStartTime(), DateTime({}, {7, 15, 0}));
    EXPECT_EQ(stored.AutoShiftEndTime(), DateTime({}, {16, 45, 0}));
}

TEST_F(MainWindowTest, TellsOfAnOptionThatIsNoneAndRestoresWhatIsInMemory)
{
    ClickTab(Main(), 5);
    Type(Length(), "99999"); // beyond 16 bits
    Click(Main(), "cmdApplyOptions");
    EXPECT_EQ(program.desktop.Take(), Boxes{kNotApplied});
    EXPECT_EQ(Length().text(), "99999");
    Type(Length(), "7");
    Type(StartTime(), "soon");
    Click(Main(), "cmdApplyOptions");
    EXPECT_EQ(program.desktop.Take(), Boxes{kNotApplied});
    EXPECT_EQ(StartTime().text(), "soon");
    Click(Main(), "cmdCancelOptions");
    EXPECT_EQ(Length().text(), "7");
    EXPECT_EQ(StartTime().text(), "12:00:00 AM");
}

TEST_F(MainWindowTest, TellsWhenTheDatabaseIsHeldAndKeepsThePage)
{
    CJetDB other(program.folder.Path());
    ASSERT_TRUE(other.OpenDB());
    ClickTab(Main(), 5);
    Type(Length(), "7");
    Click(Main(), "cmdApplyOptions");
    EXPECT_EQ(program.desktop.Take(), Boxes{kNotApplied});
    EXPECT_EQ(Length().text(), "7");
}

TEST_F(MainWindowTest, ClosesInSpiteOfBadOptionsAndTellsOnEachPassThroughThem)
{
    struct Way
    {
        std::function<void(FController&)> leave;
        std::size_t boxes;
    };
    const std::vector<Way> ways{{[](FController& main) { main.close(); }, 1},
                                {[](FController& main) { Find<QAction>(main, "mnuFileExit").trigger(); }, 2}};
    for (const Way& way : ways) {
        GuiProgram bad;
        bad.LogIn();
        FController& main = bad.Main();
        Find<QLineEdit>(main, "txtPeriodLength").setText("abc");
        way.leave(main);
        EXPECT_EQ(bad.desktop.Take(), Boxes(way.boxes, kOptionsNotSaved));
        EXPECT_EQ(bad.ended, 1);
        EXPECT_FALSE(main.isVisible());
    }
}

TEST_F(MainWindowTest, ClosedInTheMiddleOfADialogItClosesTheDialogFirst)
{
    FController& main = Main();
    {
        const ExpectedModal about([&main](QDialog& window) {
            main.close();
            EXPECT_FALSE(window.isVisible());
            EXPECT_TRUE(main.isVisible());
        });
        Find<QAction>(main, "mnuHelpAbout").trigger();
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return program.ended == 1; }));
}

TEST_F(MainWindowTest, TheWindowMenuHoldsTheOpenReports)
{
    ClickTab(Main(), 2);
    Find<QComboBox>(Main(), "cboReports").setCurrentText("Phone Book");
    Click(Main(), "cmdGenerate");
    Find<QComboBox>(Main(), "cboReports").setCurrentText("Employee Records");
    Click(Main(), "cmdGenerate");
    auto& menu = Find<QMenu>(Main(), "mnuWindow");
    const auto lines = [&menu] {
        emit menu.aboutToShow();
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            texts << action->text();
        }
        return texts;
    };
    EXPECT_EQ(lines(), QStringList({"&Print All", "&Close All", "", "&1 Employee Phone Book", "&2 Employee Records"}));
    auto& line = *Find(Main(), "FrameArray(2)").findChild<QLabel*>("lblNotice");
    program.desktop.shellCodes = {ShellSuccess + 1, ShellNoProgram};
    Find<QAction>(Main(), "mnuWindowPrintAll").trigger();
    EXPECT_EQ(line.text(), "1 of 2 reports printed, the next one was refused");
    EXPECT_EQ(lines().mid(3), QStringList("&1 Employee Records"));
    Find<QAction>(Main(), "mnuWindowCloseAll").trigger();
    EXPECT_EQ(lines().mid(3), QStringList("No report is open"));
}

TEST_F(MainWindowTest, ActionsStayInSightAtTheSmallestSize)
{
    Main().resize(1, 1);
    for (int tab = 1; tab <= 5; ++tab) {
        ClickTab(Main(), tab);
        QCoreApplication::processEvents();
        const auto actions = Find(Find(Main(), QString("FrameArray(%1)").arg(tab)), "inside")
                                 .findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly);
        EXPECT_GE(actions.size(), tab == 2 ? 1 : 2) << tab;
        for (const QPushButton* action : actions) {
            EXPECT_EQ(action->visibleRegion().boundingRect(), action->rect()) << action->objectName().toStdString();
            EXPECT_GE(action->width(), action->sizeHint().width()) << action->objectName().toStdString();
        }
    }
}

TEST_F(MainWindowTest, TheGrossPayIsInSightAtTheSmallestSizeAndTwelveRowsOnASmallScreen)
{
    const auto& gross = Find<QLineEdit>(Main(), "txtTCPeriodPay");
    Main().resize(1, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(gross.visibleRegion().boundingRect(), gross.rect());
    Main().resize(1008, 652); // what 1024 x 700 leaves beside a window manager's frame
    QCoreApplication::processEvents();
    const auto& grid = Find<QTableView>(Main(), "grdTimeRecs");
    EXPECT_GE(grid.viewport()->height(), 12 * grid.verticalHeader()->defaultSectionSize() + 10) << "with room for a larger font";
    const int low = Find(Main(), "lstHours").height();
    Main().resize(1008, 900);
    QCoreApplication::processEvents();
    EXPECT_GT(Find(Main(), "lstHours").height(), low) << "the bars have the room that there is";
}

TEST_F(MainWindowTest, FormsHaveTheirButtonsBelowTheirFields)
{
    Main().resize(1920, 1000);
    ClickTab(Main(), 3);
    QCoreApplication::processEvents();
    const auto place = [&](const char* name) {
        const QWidget& control = Find(Main(), name);
        return QRect(control.mapTo(&Main(), QPoint()), control.size());
    };
    EXPECT_LT(place("cmdEmployeeSave").top() - place("Frame3").bottom(), 60);
    EXPECT_LT(place("cmdEmployeeCancel").right() - place("txtEmployeeAddr1").right(), 20);
    EXPECT_GT(place("txtEmployeeAddr1").right(), 900);
}

TEST_F(MainWindowTest, ARememberedPlaceFitsTheScreen)
{
    QWidget large;
    large.setGeometry(700, 500, 3000, 2000);
    StorePlace(large, "main");
    GuiProgram next;
    next.LogIn();
    EXPECT_TRUE(next.Main().screen()->availableGeometry().contains(next.Main().frameGeometry()));
}

TEST_F(MainWindowTest, RemembersItsSize)
{
    Main().resize(700, 600);
    const QSize size = Main().size();
    Main().close();
    GuiProgram next;
    next.LogIn();
    EXPECT_EQ(next.Main().size(), size);
}

} // namespace

} // namespace ptk
