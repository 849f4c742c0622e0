// Save for Accountant: a profile is made with a look at its first rows, kept, and writes the table.
#include "gui/PageFixture.h"

#include <fmt/format.h>

namespace ptk {

namespace {

// Ann Lee works 8 hours and 20 minutes on 3/3/2003, Bo Kim not at all.
void AddAccountantStaff(BulkWriter& writer)
{
    EmployeeRow row;
    row.LastName = "Kim";
    row.EmployeeActive = true;
    writer.AddEmployee(row);
    row.LastName = "=Lee";
    row.EmployeeNumber = 5;
    row.PayRate = 10;
    row.OvertimePayRate = 15;
    writer.AddTimeRecord({-1, writer.AddEmployee(row), DateTime({2003, 3, 3}, {8, 0, 0}), DateTime({2003, 3, 3}, {16, 20, 0})});
}

class AccountantWindowTest : public PageTest
{
protected:
    AccountantWindowTest() : PageTest(AddAccountantStaff) { ClickTab(Main(), 2); }

    // Headings and cells.
    static std::string Shown(const QWidget& window, const char* name = "grdPreview")
    {
        const auto& grid = Find<QTableWidget>(window, name);
        std::string text;
        for (int row = -1; row < grid.rowCount(); ++row) {
            for (int column = 0; column < grid.columnCount(); ++column) {
                const auto* item = row < 0 ? grid.horizontalHeaderItem(column) : grid.item(row, column);
                text += (item == nullptr ? "" : item->text().toStdString()) + (column + 1 < grid.columnCount() ? "," : "|");
            }
        }
        return text;
    }

    static void Pick(const QWidget& window, const char* box, const QString& text)
    {
        Find<QComboBox>(window, box).setCurrentText(text);
        EXPECT_EQ(Find<QComboBox>(window, box).currentText(), text);
    }

    static void MakeProfile(QDialog& editor)
    {
        const auto hint = [&] { return Find<QLabel>(editor, "lblHint").text(); };
        EXPECT_EQ(hint(), "The profile needs a name.");
        EXPECT_FALSE(Find<QPushButton>(editor, "cmdSave").isEnabled());
        Type(Find<QLineEdit>(editor, "txtName"), "Plain");
        EXPECT_EQ(hint(), "\"Plain\" is the name of a profile that is always there.");
        Type(Find<QLineEdit>(editor, "txtName"), "Payroll");
        auto& columns = Find<QTableWidget>(editor, "grdColumns");
        while (columns.rowCount() > 0) {
            Click(editor, "cmdRemove");
        }
        EXPECT_EQ(hint(), "The table needs at least one column.");
        for (const char* column : {"The same text in every row", "Hours", "Name"}) {
            Pick(editor, "cboColumn", column);
            Click(editor, "cmdAdd");
        }
        Click(editor, "cmdUp");
        QApplication::setActiveWindow(&editor);
        columns.setCurrentCell(0, 1);
        columns.setFocus();
        QTest::keyClick(&columns, Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), "Client");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_TRUE(editor.isVisible()) << "Enter ends the heading, not the window";
        columns.item(0, 2)->setText("4711");
        Pick(editor, "cboRows", "one a person and kind of hours");
        Pick(editor, "cboHours", "7:30");
        Pick(editor, "cboSeparator", "semicolon");
        EXPECT_EQ(Shown(editor), "Client,Name,Hours|4711,'=Lee,8:00|4711,'=Lee,0:20|");
        Click(editor, "cmdSave");
    }

    void SaveTo(const QDialog& window, const std::string& file)
    {
        const ExpectedModal saving([&](QDialog& dialog) {
            EXPECT_TRUE(dynamic_cast<QFileDialog&>(dialog).selectedFiles().value(0).endsWith("/accountant_2003-03-01_2003-03-15.csv"));
            dynamic_cast<QFileDialog&>(dialog).selectFile(QString::fromStdString(file));
            dialog.accept();
        });
        Click(window, "cmdSaveAs");
    }
};

TEST_F(AccountantWindowTest, MakesAProfileAndWritesTheTableByIt)
{
    EXPECT_FALSE(The<QPushButton>("cmdAccountant").isEnabled()) << "a time card has no table";
    The<QComboBox>("cboReports").setCurrentText("Accountants Review");
    Press("cmdAccountant");
    EXPECT_EQ(Find<QLabel>(Find(Main(), "FrameArray(2)"), "lblNotice").text(), "Nobody is selected");
    Press("cmdSelectAll");
    const std::string file = program.folder.Path() + "/table.csv";
    {
        const ExpectedModal window([&](QDialog& dialog) {
            const auto hint = [&] { return Find<QLabel>(dialog, "lblHint").text().toStdString(); };
            EXPECT_EQ(Find<QComboBox>(dialog, "cboProfile").currentText(), "plain");
            EXPECT_FALSE(Find<QPushButton>(dialog, "cmdEdit").isEnabled());
            EXPECT_EQ(Shown(dialog).substr(0, 41), "Employee Number,First Name,Last Name,From");
            {
                const ExpectedModal editor(MakeProfile);
                Click(dialog, "cmdNew");
            }
            EXPECT_EQ(Find<QComboBox>(dialog, "cboProfile").currentText(), "Payroll");
            SaveTo(dialog, file);
            EXPECT_EQ(hint(), "Saved as " + file + ". The table is without Kim: there are no time records in this period.");
            EXPECT_EQ(ReadBytes(file), "Client;Name;Hours\r\n4711;'=Lee;8:00\r\n4711;'=Lee;0:20\r\n");
            program.desktop.answers = {Answer::Yes};
            Click(dialog, "cmdDelete");
            EXPECT_EQ(Find<QComboBox>(dialog, "cboProfile").count(), 3);
            Click(dialog, "cmdClose");
        });
        Press("cmdAccountant");
    }
    EXPECT_EQ(Told(), (Boxes{{"Delete the profile \"Payroll\"?", "Save for Accountant", Icon::Question, Buttons::YesNo}}));
    EXPECT_EQ(Stored("SELECT COUNT(*) AS x FROM _Profile"), std::vector<std::string>{"0"});
}

} // namespace

} // namespace ptk
