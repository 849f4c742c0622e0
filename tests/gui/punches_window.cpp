// File > Import Punches.
#include "gui/PageFixture.h"

namespace ptk {

namespace {

class PunchesWindowTest : public PageTest
{
protected:
    PunchesWindowTest() : PageTest({}) {}
};

TEST_F(PunchesWindowTest, ShowsWhatBecomesOfEachLineAndStoresItAsOneStep)
{
    const std::string file = program.folder.Path() + "/punches.csv";
    WriteBytes(file, "Badge,Start,End\n39,2003-03-05 08:00,2003-03-05 17:00\n39,2003-03-06 08:00,\n99,2003-03-05 08:00,\n");
    const ExpectedModal import([&](QDialog& window) {
        const auto hint = [&] { return Find<QLabel>(window, "lblHint").text(); };
        Type(Find<QLineEdit>(window, "txtFile"), QString::fromStdString(file));
        Click(window, "cmdRead");
        EXPECT_EQ(hint(), "Nothing was stored: no column says whose punches these are: Employee, Number, ID, Name or SSN.");
        Type(Find<QLineEdit>(window, "txtColumns"), "Badge");
        Click(window, "cmdRead");
        EXPECT_TRUE(hint().startsWith("Nothing was stored: what the headings mean")) << hint().toStdString();
        Type(Find<QLineEdit>(window, "txtColumns"), "Badge=ID");
        Click(window, "cmdRead");
        EXPECT_EQ(hint(), "2 lines can be stored, 1 are refused for the reasons above. Nothing has been stored yet.");
        EXPECT_EQ(Find<QPlainTextEdit>(window, "txtAccount").toPlainText(),
                  "Lines: 3, stored 2, there already 0, refused 1\nLine 4: Badge: nobody has \"99\"");
        EXPECT_FALSE(Find<QPushButton>(window, "cmdImport").isEnabled());
        Find<QCheckBox>(window, "chkPartly").setChecked(true);
        Click(window, "cmdImport");
        EXPECT_EQ(hint(), "2 punches stored; Edit > Undo takes them back.");
        Click(window, "cmdCancel");
    });
    Find<QAction>(Main(), "mnuFilePunches").trigger();
    EXPECT_EQ(Stored("SELECT COUNT(*) AS x FROM TimeRecord"), std::vector<std::string>{"2"});
    Find<QAction>(Main(), "mnuEditUndo").trigger();
    EXPECT_EQ(Stored("SELECT COUNT(*) AS x FROM TimeRecord"), std::vector<std::string>{"0"});
    EXPECT_EQ(Told(), Boxes());
}

} // namespace

} // namespace ptk
