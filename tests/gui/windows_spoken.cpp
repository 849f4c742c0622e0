// What assistive tools are told of each window.
#include "gui/PageFixture.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/widgets/Spoken.h"

#include <QAccessible>

namespace ptk {

namespace {

void AddSpokenStaff(BulkWriter& writer)
{
    EmployeeRow employee;
    employee.EmployeeNumber = 41;
    employee.LastName = "Lee";
    employee.Password = "only mine";
    employee.EmployeeActive = true;
    writer.AddEmployee(employee);
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {17, 0, 0})});
    writer.AddTimeRecord({-1, 40, DateTime({2003, 3, 4}, {8, 0, 0}), DateTime()});
}

bool IsTable(QAccessible::Role role)
{
    return role == QAccessible::Table || role == QAccessible::List || role == QAccessible::Tree;
}

// The editor inside a list has no focus of its own.
bool IsEditorOfList(const QAccessibleInterface& part)
{
    const QAccessibleInterface* const parent = part.parent();
    return part.role() == QAccessible::EditableText && parent != nullptr && parent->role() == QAccessible::ComboBox;
}

// What can have the keyboard and has no name, with all that is in it; cells are named by what they show.
void FindUnnamed(QAccessibleInterface& part, QStringList& unnamed)
{
    if (part.state().invisible) {
        return;
    }
    if (part.state().focusable && !IsEditorOfList(part) && part.text(QAccessible::Name).isEmpty()) {
        const QObject* object = part.object();
        unnamed << QString("%1 %2").arg(object == nullptr ? "" : object->objectName()).arg(static_cast<int>(part.role()));
    }
    for (int i = 0; !IsTable(part.role()) && i < part.childCount(); ++i) {
        FindUnnamed(*part.child(i), unnamed);
    }
}

std::string UnnamedIn(QWidget& window)
{
    QStringList unnamed;
    FindUnnamed(*QAccessible::queryAccessibleInterface(&window), unnamed);
    return unnamed.join(", ").toStdString();
}

// Stands between the program and a screen reader: what the toolkit tells it, and what it tells on, as "focus NAME", "typed LETTERS", "shown
// TEXT". Without a desktop the toolkit tells nobody anything by itself.
class Reader
{
public:
    Reader() : m_program(QAccessible::installUpdateHandler(Hear))
    {
        s_told.clear();
        TellScreenReaders();
    }
    ~Reader()
    {
        QAccessible::installUpdateHandler(nullptr);
        TellScreenReaders();
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    std::string After(QAccessibleEvent& event) const
    {
        m_program(&event);
        return Told();
    }
    std::string AfterFocus(QWidget& widget) const
    {
        QAccessibleEvent focus(&widget, QAccessible::Focus);
        return After(focus);
    }
    static std::string Told() { return std::exchange(s_told, {}).join(", ").toStdString(); }

private:
    static void Hear(QAccessibleEvent* event)
    {
        const QString name = event->accessibleInterface()->text(QAccessible::Name);
        if (event->type() == QAccessible::Focus) {
            s_told << "focus " + name;
        } else if (event->type() == QAccessible::TextInserted) {
            s_told << "typed " + static_cast<QAccessibleTextInsertEvent*>(event)->textInserted();
        } else if (event->type() == QAccessible::TextSelectionChanged) {
            s_told << "selected in " + name;
        } else if (event->type() == QAccessible::ObjectShow && event->accessibleInterface()->role() == QAccessible::Notification) {
            s_told << "shown " + name;
        }
    }

    static inline QStringList s_told;
    QAccessible::UpdateHandler m_program;
};

class SpokenWindowsTest : public PageTest
{
protected:
    SpokenWindowsTest() : PageTest(AddSpokenStaff) {}

    void ExpectNamed(const char* action)
    {
        Find<QAction>(Main(), action).trigger();
        QCoreApplication::processEvents();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                EXPECT_EQ(UnnamedIn(*window), "") << window->objectName().toStdString();
            }
        }
    }

    void ExpectNamedDialog(const char* action)
    {
        const ExpectedModal modal([](QDialog& dialog) {
            EXPECT_EQ(UnnamedIn(dialog), "") << dialog.objectName().toStdString();
            dialog.reject();
        });
        Find<QAction>(Main(), action).trigger();
    }
};

TEST_F(SpokenWindowsTest, NameEachControlThatTakesTheKeyboard)
{
    for (int tab = 5; tab >= 1; --tab) {
        ClickTab(Main(), tab);
        EXPECT_EQ(UnnamedIn(Main()), "") << tab;
    }
    for (const char* action : {"mnuViewOverview", "mnuViewHistory", "mnuViewCardHistory"}) {
        ExpectNamed(action);
    }
    for (const char* action : {"mnuFileRestore", "mnuFilePunches", "mnuFileEmployees", "mnuHelpShortcuts", "mnuHelpAbout"}) {
        ExpectNamedDialog(action);
    }
}

TEST_F(SpokenWindowsTest, TellCellsAndHideThePassword)
{
    Press("cmdPeriodBack"); // 18 February to 4 March
    Pick(The<QComboBox>("cboTCEmployeeName"), "Lee");
    Press("cmdGenTimeRecs");
    auto& grid = *QAccessible::queryAccessibleInterface(&The<QTableView>("grdTimeRecs"));
    ASSERT_NE(grid.tableInterface(), nullptr);
    EXPECT_EQ(grid.tableInterface()->columnDescription(0), "Start");
    ASSERT_GT(grid.tableInterface()->rowCount(), 0);
    EXPECT_EQ(grid.tableInterface()->cellAt(0, 0)->text(QAccessible::Name), "03/03/2003 08:00 AM");

    ClickTab(Main(), 3);
    auto& password = The<QLineEdit>("txtPassword");
    password.setText("only mine");
    const auto& spoken = *QAccessible::queryAccessibleInterface(&password);
    EXPECT_TRUE(spoken.state().passwordEdit);
    EXPECT_FALSE(spoken.text(QAccessible::Value).contains("mine"));
    const Reader reader;
    QAccessibleTextInsertEvent typed(&password, 0, "on");
    EXPECT_EQ(reader.After(typed), "typed **");
}

TEST_F(SpokenWindowsTest, TellWhereTheKeyboardIsWhatIsChosenThereAndEachMessage)
{
    Press("cmdPeriodBack");
    Pick(The<QComboBox>("cboTCEmployeeName"), "Lee");
    Press("cmdGenTimeRecs");
    auto& grid = The<QTableView>("grdTimeRecs");
    grid.setCurrentIndex(grid.model()->index(1, 0));
    const Reader reader;
    EXPECT_EQ(reader.AfterFocus(grid), "focus Time records, focus 03/04/2003 08:00 AM");
    Find<NoticeLine>(The<QWidget>("FrameArray(1)"), "notice").Say("Lee saved");
    EXPECT_EQ(Reader::Told(), "shown Lee saved");

    ClickTab(Main(), 3);
    auto& phone = The<QLineEdit>("txtEmployeePhone");
    phone.setFocus();
    QAccessibleTextSelectionEvent selected(&phone, 0, 2);
    EXPECT_EQ(reader.After(selected), "focus Phone, selected in Phone")
        << "a reader that learns of a selection first takes it for the old place";
    EXPECT_EQ(reader.AfterFocus(phone), "") << "it knows";
    EXPECT_EQ(reader.AfterFocus(phone), "focus Phone") << "from another window";
}

} // namespace

} // namespace ptk
