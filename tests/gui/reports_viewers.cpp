// The viewer windows of the reports, driven as a user drives them.
#include "gui/GuiProgram.h"
#include "reports/ReportFixture.h"
#include "support/Hardship.h"
#include "ui/reports/QtViewerFactory.h"

#include <QtTest>
#include <QtWidgets>

namespace ptk {

namespace {

class ReportViewersTest : public ReportTest
{
protected:
    void TearDown() override
    {
        windows.CloseAll();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::shared_ptr<Report> NewShown(ReportKind kind)
    {
        auto made = EntryOf(kind).make({folder.Path(), desktop, clock, windows, factory, &window});
        made->ParentWindow(&owner);
        return made;
    }

    // The records report of Ann and Zorn in its window.
    ReportViewerWindow& OpenRecords()
    {
        report = NewShown(ReportKind::Employee);
        EXPECT_TRUE(report->Generate(Of({ann, zorn})));
        ReportViewerWindow& viewer = Window("FReportEmployee");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&viewer));
        return viewer;
    }

    static std::vector<ReportViewerWindow*> Windows()
    {
        std::vector<ReportViewerWindow*> shown;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* viewer = qobject_cast<ReportViewerWindow*>(widget); viewer != nullptr && viewer->isVisible()) {
                shown.push_back(viewer);
            }
        }
        return shown;
    }

    static ReportViewerWindow& Window(const QString& name)
    {
        for (ReportViewerWindow* viewer : Windows()) {
            if (viewer->objectName() == name) {
                return *viewer;
            }
        }
        throw std::runtime_error("no such window: " + name.toStdString());
    }

    static QString Notice(const QWidget& viewer) { return viewer.findChild<QLabel*>("lblNotice")->text(); }
    static QPlainTextEdit& Text(const QWidget& viewer) { return *viewer.findChild<QPlainTextEdit*>("txtReport"); }
    static void Click(const QWidget& viewer, const char* button)
    {
        QTest::mouseClick(viewer.findChild<QPushButton*>(button), Qt::LeftButton);
    }

    QtViewerFactory windows{[this](const std::string& line) { logged.push_back(line); }};
    std::vector<std::string> logged;
    std::shared_ptr<Report> report;
};

TEST_F(ReportViewersTest, ShowsTheReportFromItsTop)
{
    ReportViewerWindow& viewer = OpenRecords();
    QPlainTextEdit& text = Text(viewer);
    EXPECT_EQ(viewer.windowTitle(), "Employee Records");
    EXPECT_EQ(text.toPlainText(), QString::fromStdString(Golden("employee_records.txt")).replace("\r\n", "\n"));
    EXPECT_TRUE(text.isReadOnly());
    EXPECT_TRUE(QFontInfo(text.font()).fixedPitch());
    EXPECT_EQ(text.lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_DOUBLE_EQ(text.tabStopDistance(), 8 * QFontMetricsF(text.font()).horizontalAdvance(' '));
    EXPECT_EQ(text.verticalScrollBar()->value(), 0);
    EXPECT_EQ(text.textCursor().position(), 0);
    EXPECT_EQ(viewer.findChild<QLabel*>("lblNotice")->text(), "");
    EXPECT_TRUE(viewer.findChild<QPushButton*>("cmdPrint")->isVisibleTo(viewer.findChild<QWidget*>("pnlButtons")));
    QTest::keyClicks(&text, "x");
    text.selectAll();
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Employee Records"));
}

TEST_F(ReportViewersTest, ClosingUnloadsTheReportOnce)
{
    for (const bool byKey : {false, true}) {
        QPointer<ReportViewerWindow> viewer = &OpenRecords();
        const std::weak_ptr<Report> watch = std::exchange(report, nullptr);
        EXPECT_FALSE(watch.expired()) << "the open viewer holds it";
        owner.unloaded.clear();
        if (byKey) {
            QTest::keyClick(viewer, Qt::Key_Escape);
        } else {
            Click(*viewer, "cmdClose");
        }
        EXPECT_EQ(owner.unloaded, std::vector<ReportKind>{ReportKind::Employee});
        EXPECT_TRUE(watch.expired());
        EXPECT_TRUE(Windows().empty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(viewer.isNull());
    }
}

TEST_F(ReportViewersTest, PrintingHidesTheViewerOnlyWhenItSucceeds)
{
    ReportViewerWindow& viewer = OpenRecords();
    desktop.shellCodes = {31, 2, 42};
    Click(viewer, "cmdPrint");
    EXPECT_TRUE(viewer.isVisible());
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_TRUE(viewer.findChild<QLabel*>("lblNotice")->text().startsWith("Not printed."));
    EXPECT_EQ(logged, std::vector<std::string>{"Not printed: Employee Records"});
    Click(viewer, "cmdPrint");
    EXPECT_TRUE(viewer.isVisible());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].title, "User's Guide Open Error");
    QTest::keyClick(&viewer, Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(viewer.isVisible());
    ASSERT_EQ(desktop.requests.size(), 3U);
    EXPECT_TRUE(desktop.requests[2].path.ends_with("/employee_records.pdf"));
    EXPECT_TRUE(owner.unloaded.empty()) << "still loaded";
    windows.ClosePrinted();
    EXPECT_EQ(owner.unloaded, std::vector<ReportKind>{ReportKind::Employee});
}

TEST_F(ReportViewersTest, OpensItsPagesOrSaysWhyNot)
{
    ReportViewerWindow& viewer = OpenRecords();
    desktop.shellCodes = {42, 31};
    Click(viewer, "cmdOpenPdf");
    ASSERT_EQ(desktop.requests.size(), 1U);
    const std::string path = desktop.requests[0].path;
    EXPECT_TRUE(ReadBytes(path).starts_with("%PDF-"));
    desktop.refusal = "no program is set up for this kind of document";
    QTest::keyClick(&viewer, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Notice(viewer), "Not opened: no program is set up for this kind of document.");
    EXPECT_EQ(logged, std::vector<std::string>{"Not opened: Employee Records: no program is set up for this kind of document"});
    viewer.close();
    EXPECT_FALSE(std::filesystem::exists(path)) << "it lives as long as the window";
}

TEST_F(ReportViewersTest, SavesInTheFormThatIsChosenOrNamed)
{
    QSettings().setValue("save/folder", QString::fromStdString(folder.Path()));
    ReportViewerWindow& viewer = OpenRecords();
    const auto save = [&](const std::function<void(QFileDialog&)>& choose) {
        const ModalScript script([&](QDialog& dialog) {
            choose(dynamic_cast<QFileDialog&>(dialog));
            dialog.accept();
        });
        Click(viewer, "cmdSaveAs");
        EXPECT_TRUE(script.WasRun());
    };
    save([](const QFileDialog&) {});
    EXPECT_TRUE(ReadBytes(folder.Path() + "/employee_records.pdf").starts_with("%PDF-"));
    EXPECT_EQ(Notice(viewer).toStdString(), "Saved as " + folder.Path() + "/employee_records.pdf.");
    save([](QFileDialog& dialog) { QTest::keyClick(dialog.findChild<QComboBox*>("fileTypeCombo"), Qt::Key_Down); });
    EXPECT_TRUE(ReadBytes(folder.Path() + "/employee_records.csv")
                    .starts_with("\xEF\xBB\xBF"
                                 "Employee Number,"));
    save([this](QFileDialog& dialog) { dialog.selectFile(QString::fromStdString(folder.Path() + "/system/other.TXT")); });
    EXPECT_EQ(ReadBytes(folder.Path() + "/system/other.TXT"), Golden("employee_records.txt"));
    EXPECT_EQ(QSettings().value("save/folder").toString().toStdString(), folder.Path() + "/system") << "for the next time";

    save([](QFileDialog& dialog) { dialog.selectFile("/proc/report.pdf"); });
    EXPECT_TRUE(Notice(viewer).startsWith("Not saved: "));
    EXPECT_EQ(logged.size(), 1U);
}

TEST_F(ReportViewersTest, FindsText)
{
    ReportViewerWindow& viewer = OpenRecords();
    auto& find = *viewer.findChild<QLineEdit*>("txtFind");
    EXPECT_FALSE(find.isVisible());
    QTest::keyClick(&Text(viewer), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(find.isVisible());
    QTest::keyClicks(&find, "zorn");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(Text(viewer).textCursor().selectedText(), "Zorn");
    QTest::keyClicks(&find, "?");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(viewer.findChild<QLabel*>("lblFound")->text(), "Not found");

    find.setText("555-0101");
    QTest::keyClick(&find, Qt::Key_Return);
    EXPECT_EQ(Text(viewer).textCursor().selectedText(), "555-0101") << "from the top again";
    Click(viewer, "cmdFindPrevious");
    EXPECT_EQ(viewer.findChild<QLabel*>("lblFound")->text(), "");

    QTest::keyClick(&viewer, Qt::Key_Escape);
    EXPECT_FALSE(find.isVisible());
    EXPECT_TRUE(viewer.isVisible()) << "the first Escape leaves the find bar only";
}

TEST_F(ReportViewersTest, ZoomsWithItsTabStops)
{
    ReportViewerWindow& viewer = OpenRecords();
    QPlainTextEdit& text = Text(viewer);
    const double size = text.font().pointSizeF();
    QTest::keyClick(&viewer, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(text.font().pointSizeF(), size + 1);
    const QPointF middle(20, 20);
    QWheelEvent wheel(middle, text.viewport()->mapToGlobal(middle), {}, QPoint(0, 240), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(text.viewport(), &wheel);
    EXPECT_EQ(text.font().pointSizeF(), size + 3);
    EXPECT_DOUBLE_EQ(text.tabStopDistance(), 8 * QFontMetricsF(text.font()).horizontalAdvance(' '));
    QTest::keyClick(&viewer, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(text.font().pointSizeF(), size + 2);
    QTest::keyClick(&viewer, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(text.font().pointSizeF(), size);
}

TEST_F(ReportViewersTest, NoneStandsExactlyOnAnother)
{
    AddShifts();
    for (const ReportEntry& entry : ReportCatalog()) {
        EXPECT_TRUE(NewShown(entry.kind)->Generate(Of({ann})));
        EXPECT_TRUE(Window(QString::fromUtf8(entry.viewer.data())).isVisible());
    }
    EXPECT_TRUE(NewShown(ReportKind::TimeCard)->Generate(Of({ann})));
    const auto shown = Windows();
    EXPECT_EQ(shown.size(), 6U);
    for (const auto* one : shown) {
        EXPECT_TRUE(one->screen()->availableGeometry().contains(one->pos()));
        for (const auto* other : shown) {
            EXPECT_TRUE(one == other || one->pos() != other->pos());
        }
    }
}

TEST_F(ReportViewersTest, SaysWhenTheFileIsNotWhole)
{
    const FullDisk full;
    ReportViewerWindow& viewer = OpenRecords();
    EXPECT_EQ(viewer.findChild<QLabel*>("lblNotice")->text(), "This report is not complete: error 702.");
}

} // namespace

} // namespace ptk
