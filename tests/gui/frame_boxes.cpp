// Journeys in which message boxes really open and keys answer them.
#include "gui/RealBoxes.h"
#include "store/whole/BulkWriter.h"
#include "ui/frame/LastWindow.h"
#include "ui/reports/ReportViewerWindow.h"

namespace ptk {

namespace {

// Idle Ames has no records; the others each worked on 3 March 2003.
void AddFrameBoxesStaff(BulkWriter& writer, int workers)
{
    std::int32_t number = 0;
    const auto add = [&writer, &number](const std::string& firstName, const std::string& lastName) {
        EmployeeRow row;
        row.FirstName = firstName;
        row.LastName = lastName;
        row.EmployeeNumber = ++number;
        row.EmployeeActive = true;
        return writer.AddEmployee(row);
    };
    add("Idle", "Ames");
    for (int i = 0; i < workers; ++i) {
        const std::int32_t id = add("No. " + std::to_string(i), "Worker");
        writer.AddTimeRecord({-1, id, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {16, 0, 0})});
    }
}

class RealBoxesTest : public testing::Test
{
protected:
    void Start(int workers)
    {
        program = std::make_unique<GuiProgramOn<ShowingDesktop>>([workers](BulkWriter& writer) { AddFrameBoxesStaff(writer, workers); });
        program->LogIn();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&program->Main()));
    }
    FController& Main() { return program->Main(); }
    QString Line() { return Find(Main(), "FrameArray(2)").findChild<QLabel*>("lblNotice")->text(); }
    void SelectEveryone()
    {
        ClickTab(Main(), 2);
        Click(Main(), "cmdSelectAll");
    }

    static std::vector<const ReportViewerWindow*> Windows()
    {
        std::vector<const ReportViewerWindow*> shown;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (const auto* viewer = qobject_cast<const ReportViewerWindow*>(window); viewer != nullptr && viewer->isVisible()) {
                shown.push_back(viewer);
            }
        }
        return shown;
    }
    static int Viewers() { return static_cast<int>(Windows().size()); }

    std::unique_ptr<GuiProgramOn<ShowingDesktop>> program;
};

TEST_F(RealBoxesTest, AFailureAmongReportsCanBeReadAndStopsNoOther)
{
    Start(2);
    SelectEveryone();
    const KeyPresses keys({{"QMessageBox", Qt::Key_Return, 800, [] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }}});
    Click(Main(), "cmdGenerate");
    EXPECT_EQ(program->desktop.Take().size(), 1U);
    EXPECT_EQ(Viewers(), 3);
    EXPECT_EQ(Line(), "2 of 3 reports complete, 1 failed");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(RealBoxesTest, ManyReportsAreMadeOnRequestBehindTheProgressAndCanBeCancelled)
{
    Start(1500);
    SelectEveryone();
    {
        const KeyPresses hurried({{"QMessageBox", Qt::Key_Return}});
        Click(Main(), "cmdGenerate");
        EXPECT_EQ(program->desktop.Take().at(0).text, "This opens 1501 windows, one for each report. Go on?");
        EXPECT_EQ(Line(), "No report was made");
        EXPECT_EQ(Viewers(), 0);
    }
    const auto allBehind = [] {
        for (const ReportViewerWindow* viewer : Windows()) {
            EXPECT_TRUE(viewer->testAttribute(Qt::WA_ShowWithoutActivating) &&
                        viewer->windowHandle()->flags() & Qt::WindowStaysOnBottomHint);
        }
    };
    const KeyPresses keys({{"QMessageBox", Qt::Key_Tab},
                           {"QMessageBox", Qt::Key_Return},
                           {"QMessageBox", Qt::Key_Return},
                           {"ptk::WorkProgress", Qt::Key_Escape, 0, allBehind}});
    Click(Main(), "cmdGenerate");
    ASSERT_GT(Viewers(), 1);
    EXPECT_TRUE(QTest::qWaitFor([] { return qobject_cast<ReportViewerWindow*>(QApplication::activeWindow()) != nullptr; }))
        << "one has come up";
    EXPECT_FALSE(Windows().front()->windowHandle()->flags() & Qt::WindowStaysOnBottomHint) << "they have risen";
    EXPECT_LT(Viewers(), 1501);
    EXPECT_EQ(Line(), QString("Cancelled: %1 of 1501 reports complete, 1 failed").arg(Viewers() - 1));
}

TEST_F(RealBoxesTest, ClosingInTheMiddleOfARunEndsTheRunFirst)
{
    Start(1500);
    SelectEveryone();
    QPointer<FController> main = &Main();
    const KeyPresses keys({{"QMessageBox", Qt::Key_Tab},
                           {"QMessageBox", Qt::Key_Return},
                           {"QMessageBox", Qt::Key_Return},
                           {"ptk::WorkProgress", Qt::Key_Escape, 0, [&] { main->close(); }}});
    Click(*main, "cmdGenerate");
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(Line().startsWith("Cancelled: "));
    EXPECT_TRUE(QTest::qWaitFor([this] { return program->ended == 1; }));
    EXPECT_TRUE(main.isNull() || !main->isVisible());
}

TEST_F(RealBoxesTest, AQuestionThatIsHurriedPastChangesNothing)
{
    Start(0);
    const KeyPresses keys({{"QMessageBox", Qt::Key_Return}});
    EXPECT_EQ(program->desktop.MessageBox("Go on?", "Question", Icon::Question, Buttons::YesNo), Answer::No);
}

TEST_F(RealBoxesTest, NothingIsLeftWhenTheDatabaseIsGoneAtTheEnd)
{
    Start(1);
    SelectEveryone();
    Find<QComboBox>(Main(), "cboReports").setCurrentText("Phone Book");
    Click(Main(), "cmdGenerate");
    EXPECT_EQ(Viewers(), 1);
    std::filesystem::remove(NativePath(program->databasePath));

    bool gone = false;
    const LastWindow last([&gone] { gone = true; });
    const KeyPresses keys({{"QMessageBox", Qt::Key_Return}, {"QMessageBox", Qt::Key_Return}});
    Main().close();
    EXPECT_EQ(program->desktop.Take().back().title, "Database Open Error");
    EXPECT_EQ(program->ended, 0);
    EXPECT_TRUE(QTest::qWaitFor([&gone] { return gone; }));
    EXPECT_FALSE(IsAnyWindowShown());
}

// To the reports, a period back, everybody, generate, print.
TEST_F(RealBoxesTest, APaydayTakesFiveKeys)
{
    Start(7);
    program->clock.now = DateTime({2003, 3, 19}, {9, 0, 0}); // the period offered is 15 to 29 March
    Find<QComboBox>(Main(), "cboReports").setCurrentIndex(1);
    Find<QComboBox>(Main(), "cboReports").setCurrentIndex(0);
    const KeyPresses box({{"QMessageBox", Qt::Key_Return}});
    const auto press = [](int key, Qt::KeyboardModifiers with) {
        QTest::keyClick(QGuiApplication::focusWindow(), static_cast<Qt::Key>(key), with);
        QCoreApplication::processEvents();
    };
    press(Qt::Key_Tab, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_A, Qt::AltModifier);
    press(Qt::Key_Return, Qt::NoModifier);
    EXPECT_EQ(Line(), "7 of 8 reports complete, 1 failed");
    EXPECT_EQ(Viewers(), 8);
    press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Line(), "8 reports printed");
    EXPECT_EQ(program->desktop.requests.size(), 8U);
    EXPECT_EQ(Viewers(), 0);
}

// The answer that Enter gives is the harmless one until a reason is typed.
TEST(ReasonBoxTest, StandsBelowTheQuestionAndIsBegunInWhereItIsWanted)
{
    QtDesktop desktop;
    const auto ask = [&](bool wanted, std::deque<KeyPress> presses) {
        ReasonLine line{{"forgot it"}, wanted, {}};
        const KeyPresses keys(std::move(presses));
        const Answer answer = desktop.AskWithReason("Continue?", "Delete?", Icon::Question, Buttons::YesNo, line);
        return std::pair(answer, line.reason);
    };
    const auto focus = [] {
        const QWidget* widget = QApplication::activeModalWidget()->focusWidget(); // whether or not it is the active window by now
        return widget == nullptr ? QString() : widget->objectName();
    };
    EXPECT_EQ(ask(false, {{"QMessageBox", Qt::Key_Return, 0, [&] { EXPECT_NE(focus(), "cboReason"); }}}),
              std::pair(Answer::No, std::string()));
    const std::deque<KeyPress> typed{{"QMessageBox", Qt::Key_W, 0, [&] { EXPECT_EQ(focus(), "cboReason"); }},
                                     {"QMessageBox", Qt::Key_Return}};
    EXPECT_EQ(ask(true, typed), std::pair(Answer::Yes, std::string("w")));
}

} // namespace

} // namespace ptk
