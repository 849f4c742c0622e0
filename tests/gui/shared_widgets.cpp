// What the pages share: message boxes, the employees behind every box, the icons.
#include "gui/GuiFixture.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "ui/QtDesktop.h"
#include "ui/widgets/ChosenOnly.h"
#include "ui/widgets/EmployeeModels.h"
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
        box.setEditable(true);
    }

    void Show(QAbstractItemModel* model, void (*choosing)(QComboBox&))
    {
        ShowEmployees(box, model, 20);
        choosing(box);
        QObject::connect(&box, &QComboBox::activated, [this](int row) { chosen << box.itemData(row, kEmployeeIDRole).toInt(); });
        box.show();
        QApplication::setActiveWindow(&box);
        box.setFocus();
    }
    void Keys(const QString& text) { QTest::keyClicks(&box, text); }
    void Key(Qt::Key key) { QTest::keyClick(&box, key); }
    QString Text() { return box.currentText(); }
    static QStringList Proposed()
    {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "proposals" && window->isVisible()) {
                return Texts(*dynamic_cast<const QListView&>(*window).model());
            }
        }
        return {};
    }

    std::shared_ptr<CEmployeeList> list = std::make_shared<CEmployeeList>();
    EmployeeModels models;
    QComboBox box;
    QList<int> chosen;
};

TEST_F(EmployeeModelsTest, ListsEveryoneAndOffersThoseWithHoursToShow)
{
    list->Remove(5);
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
    Show(models.Offered(), ChooseByTyping);
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
    EXPECT_EQ(Text(), "Ann Fox");
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 2);
    Keys("x");
    list->Remove(1);
    models.SetEmployees(list);
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(Text(), "Ann Foxx") << "still being typed";
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 1);
}

TEST_F(EmployeeModelsTest, ProposesWhoeverHoldsTheTypedTextAndChangesNothingOfIt)
{
    Show(models.All(EmployeeText::Name), ChooseOnlyDeliberately);
    Keys("haddad");
    EXPECT_EQ(Proposed(), QStringList{"Omar Haddad"});
    Key(Qt::Key_Down);
    EXPECT_EQ(Text(), "haddad");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "haddad");
    EXPECT_EQ(Proposed(), QStringList());
    EXPECT_EQ(chosen, QList<int>());

    box.setFocus();
    box.clearEditText();
    Keys("ANN");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(chosen, QList<int>{5}) << "the second of two namesakes";
    box.clearEditText();
    Keys("Nobody");
    Key(Qt::Key_Down);
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(), "Nobody");
    EXPECT_EQ(box.count(), 5);
    EXPECT_EQ(chosen, QList<int>{5});
}

TEST_F(EmployeeModelsTest, ArrowKeysGoOnFromWhatWasTyped)
{
    Show(models.All(EmployeeText::Name), ChooseOnlyDeliberately);
    Keys("omar haddad");
    Key(Qt::Key_Escape);
    Key(Qt::Key_Up);
    EXPECT_EQ(Text(), "Bo Kim");
    box.clearEditText();
    Keys("ki");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Proposed(), QStringList());
    Key(Qt::Key_Down);
    EXPECT_EQ(Proposed(), QStringList{"Bo Kim"});
    EXPECT_EQ(chosen, QList<int>{3});
}

TEST_F(EmployeeModelsTest, WhereLeavingChoosesTheBestProposalIsTaken)
{
    list->Insert(Employee(6, "Joann", "Leeson", true), 1);
    models.SetEmployees(list);
    struct Case
    {
        const char* typed;
        Qt::Key key; // Escape: only the text remains, and the list is left
        const char* text;
    };
    Show(models.Offered(), ChooseByTyping);
    for (const Case& c : {Case{"ann l", Qt::Key_Return, "Ann Lee"}, // begins with it, where the first one only holds it
                          {"had", Qt::Key_Tab, "Omar Haddad"},
                          {"leeso", Qt::Key_Escape, "Joann Leeson"},
                          {"le", Qt::Key_Escape, "le"},
                          {"omar haddad", Qt::Key_Escape, "Omar Haddad"}}) {
        box.setFocus();
        box.clearEditText();
        Keys(c.typed);
        Key(c.key);
        box.clearFocus();
        EXPECT_EQ(Text(), c.text) << c.typed;
    }
}

TEST_F(EmployeeModelsTest, ABoxOfTenThousandDoesNotGrowWithItsRows)
{
    const auto many = std::make_shared<CEmployeeList>();
    for (std::int32_t i = 1; i <= 10000; ++i) {
        many->Insert(Employee(i, "A very long first name indeed, longer than any box", "Last", true), i);
    }
    Show(models.All(EmployeeText::Name), ChooseOnlyDeliberately);
    const int width = box.sizeHint().width();
    models.SetEmployees(many);
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
