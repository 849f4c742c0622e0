// The Employees page: finding, adding and changing employees, and what it refuses.
#include "gui/PageFixture.h"
#include "model/CEmployeeList.h"
#include "ui/boxes/DateCombo.h"
#include "ui/boxes/EmployeeModels.h"
#include "ui/widgets/NoticeLine.h"

namespace ptk {

namespace {

constexpr auto kSaveTitle = "Employee Save Error";
const ShownBox kNoNumber{"You cannot save an employee without assigning an employee number.", kSaveTitle, Icon::Exclamation, Buttons::Ok};
const ShownBox kNoName{"You cannot save an employee without a name.", kSaveTitle, Icon::Exclamation, Buttons::Ok};
const ShownBox kNoSSN{"You cannot save an employee without a social security number.", kSaveTitle, Icon::Exclamation, Buttons::Ok};
const ShownBox kWrongType{"An error occurred while validating the employee information entered. Verify that all data entered is of the "
                          "appropriate type.",
                          kSaveTitle, Icon::Exclamation, Buttons::Ok};
const ShownBox kAdministrator{"The Administrator may not be modified or deleted.", kSaveTitle, Icon::Information, Buttons::Ok};
const ShownBox kNotFound{"This employee could not be found in the list. Save Aborted.", "Object Not found Error", Icon::Exclamation,
                         Buttons::Ok};
const ShownBox kNotRead{"An error occurred while loading the employee object.", "List Save Error", Icon::Exclamation, Buttons::Ok};
const ShownBox kNotSaved{"An error occurred while saving the employee list.", "List Save Error", Icon::Exclamation, Buttons::Ok};

constexpr auto kNames =
    "SELECT EmployeeID || ' ' || FirstName || '/' || LastName AS x FROM Employee WHERE EmployeeID > 39 ORDER BY EmployeeID";
constexpr auto kAnn =
    "SELECT EmployeeNumber || ' ' || SSNumber || ' ' || Address || ' ' || PayRate || ' ' || OvertimePayRate || ' ' || HireDate || ' ' || "
    "ReleaseDate || ' ' || Active || ' ' || AutoDeduct || ' ' || AutoDeductLunchLength || ' ' || AutoDeductBreakLength AS x FROM Employee "
    "WHERE EmployeeID = 40";
constexpr auto kAnnAtFirst = "5 111-11 1 Quay 12.5 18.75 2001-02-03 00:00:00 1899-12-30 00:00:00 1 1 30 15";

// Ann Lee (40), a namesake of hers (41) and Bo Kim (42), who is not active.
void AddEmployeePageStaff(BulkWriter& writer)
{
    EmployeeRow ann;
    ann.FirstName = "Ann";
    ann.LastName = "Lee";
    ann.EmployeeNumber = 5;
    ann.SSN = "111-11";
    ann.Address1 = "1 Quay";
    ann.PayRate = 12.5F;
    ann.OvertimePayRate = 18.75F;
    ann.HireDate = DateTime({2001, 2, 3});
    ann.EmployeeActive = true;
    ann.AutoDeduct = true;
    ann.AutoDeductLunchLength = 30;
    ann.AutoDeductBreakLength = 15;
    writer.AddEmployee(ann);
    EmployeeRow other = ann;
    other.EmployeeNumber = 6;
    other.SSN = "222-22";
    writer.AddEmployee(other);
    other.FirstName = "Bo";
    other.LastName = "Kim";
    other.EmployeeNumber = 7;
    other.SSN = "333-33";
    other.EmployeeActive = false;
    other.AutoDeduct = false;
    writer.AddEmployee(other);
}

class EmployeePageTest : public PageTest
{
protected:
    EmployeePageTest() : PageTest(AddEmployeePageStaff) { ClickTab(Main(), 3); }

    QComboBox& Box(const char* name) { return The<QComboBox>(name); }
    QString Keys()
    {
        QStringList keys;
        for (const char* box : {"cboEmployeeID", "cboEmployeeName", "cboEmployeeSSN", "cboEmployeeNumber"}) {
            keys << Box(box).currentText();
        }
        return keys.join("|");
    }
    QString Notice() { return Find<NoticeLine>(Find(Main(), "FrameArray(3)"), "notice").Text(); }
    QString Pay() { return Text("txtPayRate") + " " + Text("txtOvertimePayRate"); }
    void EnterKeys(const char* number, const char* name, const char* ssn)
    {
        TypeInto(Box("cboEmployeeNumber"), number);
        TypeInto(Box("cboEmployeeName"), name);
        TypeInto(Box("cboEmployeeSSN"), ssn);
    }
    Boxes Save()
    {
        Press("cmdEmployeeSave");
        return Told();
    }
};

TEST_F(EmployeePageTest, KeepsWhateverTextIsTyped)
{
    const QString strange = QString(10'000, 'x') + QString::fromUtf8("\xF0\x9F\x98\x80'\"#[;--");
    Press("cmdEmployeeNew");
    EnterKeys("8", "Zoe O'Neil #1", "444-44");
    The<QLineEdit>("txtEmployeeAddr1").setText(strange);
    EXPECT_EQ(Save(), Boxes{});
    EXPECT_EQ(Stored("SELECT FirstName || '/' || LastName || '/' || Address AS x FROM Employee WHERE EmployeeNumber = 8"),
              std::vector<std::string>{"Zoe/O'Neil #1/" + strange.toStdString()});
}

TEST_F(EmployeePageTest, EveryListFindsTheEmployee)
{
    struct Case
    {
        const char* list;
        const char* text;
        const char* keys;
        const char* status;
    };
    for (const Case& c : {Case{"cboEmployeeID", "41", "41|Ann Lee|222-22|6", "Ann Lee : Employee Number: 6"},
                          {"cboEmployeeName", "Bo Kim", "42|Bo Kim|333-33|7", "Bo Kim : Employee Number: 7"},
                          {"cboEmployeeSSN", "222-22", "41|Ann Lee|222-22|6", "Ann Lee : Employee Number: 6"},
                          {"cboEmployeeNumber", "5", "40|Ann Lee|111-11|5", "Ann Lee : Employee Number: 5"},
                          {"cboEmployeeID", "39", "39|administrator||0", " administrator : Employee Number: 0"}}) {
        Pick(Box(c.list), c.text);
        EXPECT_EQ(Keys(), c.keys) << c.list;
        EXPECT_EQ(StatusText(Main()), c.status);
        EXPECT_EQ(Main().EventSource(), eventsource::None);
    }
    Pick(Box("cboEmployeeName"), "Ann Lee");
    Key(Box("cboEmployeeName"), Qt::Key_Down);
    EXPECT_EQ(Keys(), "41|Ann Lee|222-22|6") << "the list stays on the namesake it was turned to";
}

TEST_F(EmployeePageTest, ShowsTheDeductionOfOneWhoHasIt)
{
    Pick(Box("cboEmployeeID"), "40");
    EXPECT_EQ(Pay(), "12.50 18.75");
    EXPECT_EQ(The<DateCombo>("cboHireDate").Text(), "02/03/2001");
    EXPECT_TRUE(The<QLineEdit>("txtLunchLength").isEnabled());
    Pick(Box("cboEmployeeID"), "42");
    EXPECT_EQ(Pay(), "0.00 0.00");
    EXPECT_FALSE(The<QLineEdit>("txtLunchLength").isEnabled());
    EXPECT_EQ(Text("txtLunchLength"), "30");
    The<QCheckBox>("chkAutoDeduct").click();
    EXPECT_TRUE(The<QLineEdit>("txtBreakLength").isEnabled());
}

TEST_F(EmployeePageTest, MasksThePasswordOfEachEmployeeAnew)
{
    const auto& password = The<QLineEdit>("txtPassword");
    EXPECT_EQ(password.displayText().count("wharf271"), 0);
    Press("cmdShowPassword");
    EXPECT_EQ(password.displayText(), "wharf271");
    Pick(Box("cboEmployeeID"), "40");
    EXPECT_EQ(password.echoMode(), QLineEdit::Password);
}

TEST_F(EmployeePageTest, SavesANewEmployeeAndOffersItEverywhere)
{
    Pick(Box("cboEmployeeID"), "42");
    Press("cmdEmployeeNew");
    EXPECT_EQ(Keys(), "|||");
    EXPECT_TRUE(The<QCheckBox>("chkEmployeeActive").isChecked()) << "although the one shown before is not active";
    EXPECT_EQ(Pay() + " " + Text("txtLunchLength") + " " + Text("txtBreakLength"), "0.00 0.00 0 0");
    EXPECT_TRUE(Box("cboEmployeeNumber").hasFocus());
    EnterKeys("5", "Mary Ann Orr", "444-44");
    EXPECT_EQ(Notice(), "The employee number is Ann Lee's too");
    Type(The<QLineEdit>("txtPayRate"), "9.5");
    Type(*The<DateCombo>("cboHireDate").lineEdit(), "3/1");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Notice(), "Mary Ann Orr saved. The employee number is Ann Lee's too");
    EXPECT_EQ(Stored("SELECT FirstName || '/' || LastName || ' ' || HireDate || ' ' || PayRate AS x FROM Employee WHERE EmployeeID = 43"),
              std::vector<std::string>{"Mary/Ann Orr 2003-03-01 00:00:00 9.5"});
    EXPECT_EQ(Keys(), "|||");
    Click(Find(Main(), "FrameArray(3)"), "cmdNotice");
    EXPECT_EQ(Keys(), "43|Mary Ann Orr|444-44|5") << "shown again";
    EXPECT_GE(Box("cboTCEmployeeName").findText("Mary Ann Orr"), 0);
    EXPECT_GE(Box("cboEmployeeID").findText("43"), 0);
    EXPECT_EQ(Box("cboTCEmployeeName").findText("Bo Kim"), -1);
}

TEST_F(EmployeePageTest, ASaveLeavesTheOtherPagesOnTheirEmployees)
{
    Box("cboTCEmployeeName").setCurrentIndex(1); // the second Ann Lee
    The<QListView>("lstEmployees").selectAll();
    std::vector<std::int32_t> saved;
    QObject::connect(&Main().EmployeeModels(), &EmployeeModels::Saved, [&](std::int32_t id) { saved.push_back(id); });
    Pick(Box("cboEmployeeID"), "41");
    EnterKeys("6", "Ann Fox", "222-22");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(saved, std::vector<std::int32_t>{41});
    EXPECT_EQ(Box("cboTCEmployeeName").currentText(), "Ann Fox");
    EXPECT_EQ(The<QListView>("lstEmployees").selectionModel()->selectedRows().size(), 2);
}

TEST_F(EmployeePageTest, WhatIsLeftBehindCanBeBroughtBack)
{
    struct Way
    {
        std::function<void()> leave;
        const char* after;
    };
    for (const Way& way : {Way{[this] { Pick(Box("cboEmployeeName"), "Bo Kim"); }, "42|Bo Kim|333-33|7"},
                           {[this] { Press("cmdEmployeeNew"); }, "|||"},
                           {[this] {
                                Press("cmdEmployeeCancel");
                                EXPECT_TRUE(Box("cboEmployeeName").hasFocus());
                                EXPECT_FALSE(The<QCheckBox>("chkAutoDeduct").isChecked());
                            },
                            "|||"}}) {
        Pick(Box("cboEmployeeID"), "40");
        way.leave();
        EXPECT_EQ(Notice(), "") << "nothing was typed";
        Pick(Box("cboEmployeeID"), "40");
        Type(The<QLineEdit>("txtEmployeeCity"), "Harbor");
        Type(*The<DateCombo>("cboReleaseDate").lineEdit(), "3/1");
        way.leave();
        EXPECT_EQ(Keys(), way.after);
        EXPECT_EQ(Text("txtEmployeeCity") + The<DateCombo>("cboReleaseDate").Text(), "");
        EXPECT_EQ(Notice(), "Changes to Ann Lee were not saved");
        Click(Find(Main(), "FrameArray(3)"), "cmdNotice");
        EXPECT_EQ(Keys(), "40|Ann Lee|111-11|5");
        EXPECT_EQ(Text("txtEmployeeCity") + The<DateCombo>("cboReleaseDate").Text(), "Harbor03/01/2003");
        Type(The<QLineEdit>("txtEmployeeCity"), "");
        The<DateCombo>("cboReleaseDate").SetText("");
    }
}

TEST_F(EmployeePageTest, SavesWhatWasChangedAndNothingElse)
{
    Pick(Box("cboEmployeeID"), "40");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{kAnnAtFirst});
    Pick(Box("cboEmployeeID"), "40");
    Type(The<QLineEdit>("txtEmployeeAddr1"), "2 Quay");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{"5 111-11 2 Quay 12.5 18.75 2001-02-03 00:00:00 1899-12-30 00:00:00 1 1 30 15"});
    EXPECT_EQ(Stored(kNames), (std::vector<std::string>{"40 Ann/Lee", "41 Ann/Lee", "42 Bo/Kim"}));
}

TEST_F(EmployeePageTest, TellsWhatItRefusesAndKeepsWhatWasTyped)
{
    Pick(Box("cboEmployeeID"), "40");
    The<QLineEdit>("txtEmployeeCity").setText("Harbor\u0001City"); // as pasted
    const auto refused = [this](QLineEdit* box, const char* text, const ShownBox& told) {
        Type(*box, text);
        EXPECT_EQ(Save(), Boxes{told});
        EXPECT_EQ(box->text(), text);
        EXPECT_EQ(Text("txtEmployeeCity"), "Harbor\u0001City");
    };
    refused(&The<QLineEdit>("txtLunchLength"), "32768", kNotRead);
    refused(&The<QLineEdit>("txtPayRate"), "abc", kWrongType);
    refused(Box("cboEmployeeSSN").lineEdit(), "", kNoSSN);
    refused(Box("cboEmployeeName").lineEdit(), "", kNoName);
    refused(Box("cboEmployeeNumber").lineEdit(), "", kNoNumber);
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{kAnnAtFirst});
    EXPECT_EQ(program.Controller()->EmployeeList()->Count(), 4);
    EXPECT_EQ(program.Controller()->EmployeeList()->GetEmployeeByID(40)->City(), "");
}

TEST_F(EmployeePageTest, NeverChangesTheAdministrator)
{
    Pick(Box("cboEmployeeID"), "39");
    EnterKeys("1", "Boss", "1");
    Type(The<QLineEdit>("txtPayRate"), "abc");
    EXPECT_EQ(Save(), Boxes{kWrongType});
    Type(The<QLineEdit>("txtPayRate"), "1");
    EXPECT_EQ(Save(), Boxes{kAdministrator});
    EXPECT_EQ(Keys(), "|||");
    EXPECT_EQ(Stored("SELECT LastName AS x FROM Employee WHERE EmployeeID = 39"), std::vector<std::string>{"administrator"});
}

TEST_F(EmployeePageTest, ARefusedSaveCanBeTriedAgain)
{
    for (const bool isNew : {false, true}) {
        Press("cmdEmployeeNew");
        if (!isNew) {
            Pick(Box("cboEmployeeID"), "40");
        }
        EnterKeys("9", isNew ? "Di Fox" : "Ann Fox", "999-99");
        {
            const auto holder = HoldDatabase();
            EXPECT_EQ(Save(), Boxes{kNotSaved});
            EXPECT_EQ(Save(), Boxes{kNotSaved});
        }
        EXPECT_EQ(Keys(), isNew ? "|Di Fox|999-99|9" : "40|Ann Fox|999-99|9");
        EXPECT_EQ(program.Controller()->EmployeeList()->Count(), 4);
        EXPECT_EQ(Save(), Boxes());
    }
    EXPECT_EQ(Stored(kNames), (std::vector<std::string>{"40 Ann/Fox", "41 Ann/Lee", "42 Bo/Kim", "43 Di/Fox"}));
}

TEST_F(EmployeePageTest, AnEmployeeGoneFromTheListIsNotSaved)
{
    Pick(Box("cboEmployeeID"), "40");
    const auto list = program.Controller()->EmployeeList();
    list->Remove(list->Find(list->GetEmployeeByID(40)));
    EXPECT_EQ(Save(), Boxes{kNotFound});
    EXPECT_EQ(Keys(), "40|Ann Lee|111-11|5");
}

TEST_F(EmployeePageTest, OnlyAChoiceLoadsAnotherEmployee)
{
    Pick(Box("cboEmployeeID"), "40");
    Type(The<QLineEdit>("txtEmployeeCity"), "Harbor");
    Type(*Box("cboEmployeeName").lineEdit(), "Bo Kim");
    EXPECT_EQ(Text("txtEmployeeCity"), "Harbor") << "left with the name of another";
    EXPECT_EQ(Keys(), "40|Bo Kim|111-11|5");
    TypeInto(Box("cboEmployeeName"), "bo kim");
    Key(Box("cboEmployeeName"), Qt::Key_Return);
    EXPECT_EQ(Keys(), "42|Bo Kim|333-33|7") << "found by Enter, in any letter case";
    EXPECT_EQ(Stored("SELECT PayRate AS x FROM Employee WHERE EmployeeID = 42"), std::vector<std::string>{"12.5"}) << "found, not saved";
}

TEST_F(EmployeePageTest, LeavingAsksOnceWhatBecomesOfTypedChanges)
{
    struct Way
    {
        const char* number;
        Answer answer;
        Boxes told;
        bool leaves;
        const char* ann;
    };
    const ShownBox question{"Changes to Ann Lee were not saved.\n\nSave before leaving?", "Exit", Icon::Question,
                            Buttons::SaveDiscardCancel};
    const ShownBox noNumber{"You cannot save an employee without assigning an employee number.", "Employee Save Error", Icon::Exclamation,
                            Buttons::Ok};
    const std::string stored = kAnnAtFirst;
    for (const Way& way : {Way{"9", Answer::Cancel, {question}, false, "5"},
                           {"", Answer::Yes, {question, noNumber}, false, "5"},
                           {"9", Answer::Yes, {question}, true, "9"}}) {
        Pick(Box("cboEmployeeSSN"), "111-11");
        TypeInto(Box("cboEmployeeNumber"), way.number);
        ClickTab(Main(), 1);
        program.desktop.answers = {way.answer};
        Find<QAction>(Main(), "mnuFileExit").trigger();
        EXPECT_EQ(Told(), way.told);
        EXPECT_EQ(program.ended, way.leaves ? 1 : 0);
        EXPECT_EQ(Stored(kAnn).front(), way.ann + stored.substr(1));
        if (!way.leaves) {
            EXPECT_EQ(Find(Main(), "FrameArray(3)").isVisible(), way.answer == Answer::Yes) << "what was refused is brought up";
            EXPECT_EQ(Box("cboEmployeeNumber").currentText(), way.number);
        }
    }
}

TEST_F(EmployeePageTest, DiscardedChangesAreGone)
{
    Pick(Box("cboEmployeeSSN"), "111-11");
    TypeInto(Box("cboEmployeeNumber"), "9");
    program.desktop.answers = {Answer::No};
    Main().close();
    EXPECT_EQ(Told().size(), 1U);
    EXPECT_EQ(program.ended, 1);
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{kAnnAtFirst});
}

} // namespace

} // namespace ptk
