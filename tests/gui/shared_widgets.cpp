// What the pages share: message boxes, the employees behind every box, the icons.
#include "gui/GuiFixture.h"
#include "model/CEmployee.h"
#include "model/CEmployeeList.h"
#include "ui/QtDesktop.h"
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

QStringList Texts(const QAbstractItemModel& model, int column)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts << model.index(row, column).data().toString();
    }
    return texts;
}

TEST(EmployeeModelsTest, ListsEveryoneAndOffersThoseWithHoursToShow)
{
    const auto list = std::make_shared<CEmployeeList>();
    list->Insert(Employee(1, "", "Administrator", true), 1);
    list->Insert(Employee(2, "Ann", "Lee", true), 2);
    list->Insert(Employee(3, "Bo", "Kim", false), 3);
    EmployeeModels models;
    models.SetEmployees(list);
    EXPECT_EQ(Texts(*models.All(), employeecolumn::ID), QStringList({"1", "2", "3"}));
    EXPECT_EQ(Texts(*models.All(), employeecolumn::Name), QStringList({"Administrator", "Ann Lee", "Bo Kim"}));
    EXPECT_EQ(Texts(*models.All(), employeecolumn::SSN), QStringList({"900-00-0001", "900-00-0002", "900-00-0003"}));
    EXPECT_EQ(Texts(*models.All(), employeecolumn::Number), QStringList({"101", "102", "103"}));
    EXPECT_EQ(Texts(*models.Offered(), 0), QStringList({"Ann Lee"}));

    QComboBox box;
    box.setEditable(true);
    ShowColumn(box, models.All(), employeecolumn::Name, 20);
    EXPECT_EQ(box.currentIndex(), -1);
    box.setCurrentIndex(1);
    list->Remove(3);
    EXPECT_EQ(box.itemText(2), "Bo Kim"); // rows stay whole until the lists are filled again
    models.SetEmployees(list);
    EXPECT_EQ(box.count(), 2);
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(box.currentText(), "");
}

TEST(EmployeeModelsTest, ABoxOfTenThousandNeitherGrowsWithItsRowsNorTakesWhatIsTyped)
{
    const auto list = std::make_shared<CEmployeeList>();
    for (std::int32_t i = 1; i <= 10000; ++i) {
        list->Insert(Employee(i, "A very long first name indeed, longer than any box", "Last", true), i);
    }
    EmployeeModels models;
    QComboBox box;
    box.setEditable(true);
    ShowColumn(box, models.All(), employeecolumn::Name, 20);
    const int width = box.sizeHint().width();
    models.SetEmployees(list);
    EXPECT_EQ(box.sizeHint().width(), width);
    QTest::keyClicks(box.lineEdit(), "Nobody");
    QTest::keyClick(box.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(box.count(), 10000);
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
