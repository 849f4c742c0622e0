// File > Import Employees, and a person's data from the Employees page.
#include "gui/PageFixture.h"

namespace ptk {

namespace {

class EmployeesWindowTest : public PageTest
{
protected:
    EmployeesWindowTest()
        : PageTest([](BulkWriter& writer) {
              EmployeeRow ann;
              ann.FirstName = "Ann";
              ann.LastName = "Lee";
              ann.EmployeeNumber = 7;
              ann.SSN = "1";
              ann.Phone = "555";
              ann.City = "Ulm";
              writer.AddEmployee(ann);
          })
    {
    }

    std::string File(const std::string& name) const { return program.folder.Path() + '/' + name; }
};

TEST_F(EmployeesWindowTest, ShowsKnownOnesFieldByFieldAndChangesWhatIsTicked)
{
    WriteBytes(File("employees.csv"), "Number,First Name,Last Name,SSN,City,Phone\n7,Ann,Lee,1,Bonn,556\n8,Bo,Kim,2,,\n");
    const ExpectedModal import([&](QDialog& window) {
        const auto hint = [&] { return Find<QLabel>(window, "lblHint").text(); };
        auto& table = Find<QTableView>(window, "grdDifferences");
        Type(Find<QLineEdit>(window, "txtFile"), QString::fromStdString(File("employees.csv")));
        Click(window, "cmdRead");
        EXPECT_EQ(hint(), "New employees: 1. Fields to be changed: 0 of 2. Nothing has been stored yet.");
        EXPECT_EQ(Find<QPlainTextEdit>(window, "txtAccount").toPlainText(), "Lines: 2, stored 1, there already 1, refused 0, changed 0");
        EXPECT_EQ(table.model()->index(1, 0).data().toString(), "7  Ann Lee");
        EXPECT_TRUE(table.hasFocus());
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Space}) { // the phone, behind the city
            QTest::keyClick(&table, key);
        }
        EXPECT_EQ(hint(), "New employees: 1. Fields to be changed: 1 of 2. Nothing has been stored yet.");
        Click(window, "cmdSave");
        EXPECT_EQ(hint(), "Employees added: 1, changed: 1; Edit > Undo takes it back.");
        Click(window, "cmdCancel");
    });
    The<QAction>("mnuFileEmployees").trigger();
    const std::string all = "SELECT LastName || Phone || City AS x FROM Employee WHERE EmployeeID > 39 ORDER BY EmployeeID";
    EXPECT_EQ(Stored(all), (std::vector<std::string>{"Lee556Ulm", "Kim"}));
    EXPECT_EQ(The<QAction>("mnuEditUndo").text(), "&Undo Import of 2 Employees");
    The<QAction>("mnuEditUndo").trigger();
    EXPECT_EQ(Stored(all), std::vector<std::string>{"Lee555Ulm"});
    The<QAction>("mnuEditRedo").trigger();
    EXPECT_EQ(Stored(all), (std::vector<std::string>{"Lee556Ulm", "Kim"}));
    EXPECT_EQ(Told(), Boxes());
}

TEST_F(EmployeesWindowTest, SavesAllThatIsKeptAboutAPerson)
{
    The<QTabBar>("TabStrip").setCurrentIndex(2);
    Press("cmdEmployeeNew");
    EXPECT_FALSE(The<QPushButton>("cmdEmployeeExport").isEnabled());
    auto& names = The<QComboBox>("cboEmployeeName");
    names.setCurrentIndex(names.findText("Ann Lee"));
    emit names.activated(names.currentIndex());
    const ExpectedModal save([&](QDialog& dialog) {
        EXPECT_EQ(QFileInfo(dynamic_cast<QFileDialog&>(dialog).selectedFiles().value(0)).fileName(), "PTK employee 7.pdf");
        dynamic_cast<QFileDialog&>(dialog).selectFile(QString::fromStdString(File("ann.json")));
        dialog.accept();
    });
    Press("cmdEmployeeExport");
    EXPECT_TRUE(ReadBytes(File("ann.json")).starts_with("{\"employee\":{\"number\":7,"));
}

} // namespace

} // namespace ptk
