// What the pages share: message boxes, the employees behind every box, the icons.
#include "gui/GuiFixture.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "ui/boxes/ChosenOnly.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/frame/QtDesktop.h"
#include "ui/frame/SecondStart.h"
#include "ui/widgets/AiryStyle.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/widgets/ThemeIcon.h"

namespace ptk {

namespace {

TEST(QtDesktopTest, ShowsPlainBoxesAndAnswersWithTheButtonPressed)
{
    struct Case
    {
        Icon icon;
        Buttons buttons;
        QMessageBox::Icon shownIcon;
        QMessageBox::StandardButton pressed; // NoButton: Escape
        Answer answer;
    };
    const std::string text = "<b>Line</b>\r\n\xC3\xA9 & more";
    for (const Case& c : {Case{Icon::Critical, Buttons::Ok, QMessageBox::Critical, QMessageBox::Ok, Answer::Ok},
                          {Icon::Exclamation, Buttons::Ok, QMessageBox::Warning, QMessageBox::NoButton, Answer::Ok},
                          {Icon::Information, Buttons::OkCancel, QMessageBox::Information, QMessageBox::NoButton, Answer::Cancel},
                          {Icon::Question, Buttons::YesNo, QMessageBox::Question, QMessageBox::Yes, Answer::Yes},
                          {Icon::Question, Buttons::YesNo, QMessageBox::Question, QMessageBox::NoButton, Answer::No}}) {
        const ExpectedModal user([&](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.icon(), c.shownIcon);
            EXPECT_EQ(box.windowTitle(), "Title");
            EXPECT_EQ(box.text().toStdString(), text);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            if (c.pressed == QMessageBox::NoButton) {
                QTest::keyClick(&box, Qt::Key_Escape);
            } else {
                box.button(c.pressed)->click();
            }
        });
        EXPECT_EQ(QtDesktop().MessageBox(text, "Title", c.icon, c.buttons), c.answer);
    }
}

TEST(QtDesktopTest, ABoxIsAsWideAsItsTitle)
{
    const ExpectedModal user([&](QDialog& box) {
        EXPECT_GT(box.width(), QFontMetrics(box.font()).horizontalAdvance(box.windowTitle()) + 100);
        box.close();
    });
    static_cast<void>(QtDesktop().MessageBox("No.", "A Title That Is Much Longer Than What the Box Has to Say", Icon::None, Buttons::Ok));
}

// As the eye takes brightness, 0 to 1.
double Luminance(const QColor& color)
{
    const auto linear = [](double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(AiryStyleTest, HintsCanBeReadLightAndDark)
{
    AiryStyle style;
    for (const QColor& window : {QColor(0xef, 0xef, 0xef), QColor(0x2b, 0x2d, 0x30)}) {
        QPalette palette(window);
        style.polish(palette);
        for (const auto behind : {QPalette::Base, QPalette::Window}) {
            const double one = Luminance(palette.color(QPalette::PlaceholderText));
            const double other = Luminance(palette.color(behind));
            EXPECT_GE((std::max(one, other) + 0.05) / (std::min(one, other) + 0.05), 4.5) << window.name().toStdString();
        }
    }
}

TEST(NoticeLineTest, KeepsTheEndOfAFileNameAndGivesWayWhereItMerelySuggests)
{
    NoticeLine line;
    line.SayFile("Saved as /a/very/long/path/overview.pdf.");
    line.Suggest("Saved", "Show Again", [] {});
    EXPECT_FALSE(line.IsOffering());
    line.Remark("Something else");
    EXPECT_EQ(line.Text(), "Something else");
    EXPECT_TRUE(Find<QToolButton>(line, "cmdNotice").isHidden());
}

TEST(SecondStartTest, TellsTheFirstOfTheSameFolderAlone)
{
    const TemporaryFolder folder;
    const SecondStart first(folder.Path());
    EXPECT_FALSE(first.IsSecond());
    QMainWindow window;
    window.showMinimized();
    EXPECT_FALSE(SecondStart(folder.Path() + "/..").IsSecond());
    EXPECT_TRUE(SecondStart(folder.Path() + "/.").IsSecond()) << "by another name";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isMinimized(); }));
}

TEST(QtDesktopTest, TurnsThePointerBusyOnceAndBack)
{
    QtDesktop desktop;
    desktop.SetPointer(Pointer::Busy);
    desktop.SetPointer(Pointer::Busy);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    desktop.SetPointer(Pointer::Default);
    desktop.SetPointer(Pointer::Default);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

std::shared_ptr<CEmployee> Employee(std::int32_t id, const char* firstName, const char* lastName, bool active)
{
    EmployeeRow row;
    row.EmployeeID = id;
    row.EmployeeNumber = id + 100;
    row.SSN = "900-00-000" + std::to_string(id);
    row.FirstName = firstName;
    row.LastName = lastName;
    row.EmployeeActive = active;
    return std::make_shared<CEmployee>(row);
}

QStringList Texts(const QAbstractItemModel& model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << model.index(row, 0).data().toString();
    }
    return texts;
}

class EmployeeModelsTest : public testing::Test
{
protected:
    EmployeeModelsTest()
    {
        list->Insert(Employee(1, "", "Administrator", true), 1);
        list->Insert(Employee(2, "Ann", "Lee", true), 2);
        list->Insert(Employee(3, "Bo", "Kim", false), 3);
        list->Insert(Employee(4, "Omar", "Haddad", true), 4);
        list->Insert(Employee(5, "Ann", "Lee", true), 5);
        models.SetEmployees(list);
    }

    std::shared_ptr<CEmployeeList> list = std::make_shared<CEmployeeList>();
    EmployeeModels models;
};

TEST_F(EmployeeModelsTest, ListsEveryoneAndOffersThoseWithHoursToShow)
{
    list->Remove(4);
    list->Remove(4);
    models.SetEmployees(list);
    EXPECT_EQ(Texts(*models.All(EmployeeText::ID)), QStringList({"1", "2", "3"}));
    EXPECT_EQ(Texts(*models.All(EmployeeText::Name)), QStringList({"Administrator", "Ann Lee", "Bo Kim"}));
    EXPECT_EQ(Texts(*models.All(EmployeeText::SSN)), QStringList({"900-00-0001", "900-00-0002", "900-00-0003"}));
    EXPECT_EQ(Texts(*models.All(EmployeeText::Number)), QStringList({"101", "102", "103"}));
    EXPECT_EQ(Texts(*models.Offered()), QStringList({"Ann Lee"}));
    EXPECT_EQ(models.All(EmployeeText::Number)->columnCount(), 1) << "what a screen reader is told of";
}

TEST_F(EmployeeModelsTest, TheChosenStayChosenWhenTheListsAreFilledAgain)
{
    QComboBox box;
    box.setEditable(true);
    ShowEmployees(box, models.Offered(), 20);
    EXPECT_EQ(box.currentIndex(), -1);
    QListView view;
    view.setSelectionMode(QListView::ExtendedSelection);
    ShowEmployees(view, models.Offered());
    view.selectAll();
    box.setCurrentIndex(2); // the second Ann Lee
    list->Remove(5);
    list->Remove(2);
    list->Insert(Employee(5, "Ann", "Fox", true), 1); // as read again, after she was renamed
    models.SetEmployees(list);
    EXPECT_EQ(box.currentIndex(), 0);
    EXPECT_EQ(box.currentText(), "Ann Fox");
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 2);
    box.setEditText("Ann F");
    list->Remove(1);
    models.SetEmployees(list);
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(box.currentText(), "Ann F") << "still being typed";
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 1);
}

TEST_F(EmployeeModelsTest, ABoxChangesATypedTextOnlyByChoosing)
{
    list->Insert(Employee(6, "Joann", "Leeson", true), 1);
    models.SetEmployees(list);
    struct Case
    {
        void (*choosing)(QComboBox&);
        const char* typed;
        std::vector<Qt::Key> keys;
        const char* text; // when the box has been left
        QList<int> chosen;
    };
    using enum Qt::Key;
    for (const Case& c : {Case{ChooseOnlyDeliberately, "haddad", {Key_Down, Key_Tab}, "haddad", {}},
                          {ChooseOnlyDeliberately, "haddad", {Key_Down, Key_Return}, "Omar Haddad", {4}},
                          {ChooseOnlyDeliberately, "ann lee", {Key_Return}, "Ann Lee", {2}},
                          {ChooseOnlyDeliberately, "ANN L", {Key_Up, Key_Return}, "Ann Lee", {5}}, // the second of two namesakes
                          {ChooseOnlyDeliberately, "Nobody", {Key_Down, Key_Return}, "Nobody", {}},
                          {ChooseOnlyDeliberately, "omar haddad", {Key_Escape, Key_Up}, "Bo Kim", {3}}, // goes on from there
                          {ChooseOnlyDeliberately, "ki", {Key_Escape, Key_Down, Key_Down, Key_Return}, "Bo Kim", {3}},
                          {ChooseByTyping, "ann l", {Key_Return}, "Ann Lee", {2}}, // begins with it, where the first only holds it
                          {ChooseByTyping, "had", {Key_Tab}, "Omar Haddad", {4}},
                          {ChooseByTyping, "leeso", {Key_Escape}, "Joann Leeson", {6}},
                          {ChooseByTyping, "lee", {Key_Escape}, "lee", {}}}) {
        QComboBox box;
        box.setEditable(true);
        ShowEmployees(box, models.All(EmployeeText::Name), 20);
        c.choosing(box);
        QList<int> chosen;
        QObject::connect(&box, &QComboBox::activated, [&](int row) { chosen << box.itemData(row, kEmployeeIDRole).toInt(); });
        box.show();
        QApplication::setActiveWindow(&box);
        box.setFocus();
        QTest::keyClicks(&box, c.typed);
        EXPECT_EQ(box.currentText(), c.typed);
        for (const Qt::Key key : c.keys) {
            QTest::keyClick(&box, key);
        }
        box.clearFocus();
        EXPECT_EQ(box.currentText(), c.text) << c.typed;
        EXPECT_EQ(chosen, c.chosen) << c.typed;
    }
}

TEST_F(EmployeeModelsTest, ABoxOfTenThousandDoesNotGrowWithItsRows)
{
    QComboBox box;
    ShowEmployees(box, models.All(EmployeeText::Name), 20);
    const int width = box.sizeHint().width();
    for (std::int32_t i = 1; i <= 10000; ++i) {
        list->Insert(Employee(i, "A very long first name indeed, longer than any box", "Last", true), i);
    }
    models.SetEmployees(list);
    EXPECT_EQ(box.sizeHint().width(), width);
}

// The colour in the middle of the minute hand of the clock icon, drawn large enough for pixels without an edge.
QRgb HandColor()
{
    return ThemeIcon("timecards").pixmap(96, 96).toImage().pixel(48, 36) & RGB_MASK;
}

TEST(ThemeIconTest, FollowsTheTextColourOfTheTheme)
{
    const QPalette before = QGuiApplication::palette();
    QPalette dark(before);
    dark.setColor(QPalette::WindowText, Qt::yellow);
    QGuiApplication::setPalette(dark);
    EXPECT_EQ(HandColor(), 0xffff00U);
    QGuiApplication::setPalette(before);
}

} // namespace

} // namespace ptk
