// The Employees page: finding, adding and changing employees, and what it refuses.
#include "gui/PageFixture.h"
#include "model/CEmployeeList.h"
#include "ui/widgets/DateCombo.h"

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
void AddStaff(BulkWriter& writer)
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
    EmployeePageTest() : PageTest(AddStaff) { ClickTab(Main(), 3); }

    QComboBox& Box(const char* name) { return The<QComboBox>(name); }
    QString Keys()
    {
        QStringList keys;
        for (const char* box : {"cboEmployeeID", "cboEmployeeName", "cboEmployeeSSN", "cboEmployeeNumber"}) {
            keys << Box(box).currentText();
        }
        return keys.join("|");
    }
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
}

TEST_F(EmployeePageTest, ShowsARecordAndHidesTheRatesOfOneNotActive)
{
    Pick(Box("cboEmployeeID"), "40");
    EXPECT_EQ(Pay(), "12.50 18.75");
    EXPECT_EQ(The<DateCombo>("cboHireDate").Text(), "02/03/2001");
    EXPECT_EQ(The<DateCombo>("cboReleaseDate").Text(), "");
    EXPECT_TRUE(The<QLineEdit>("txtLunchLength").isEnabled());
    Pick(Box("cboEmployeeID"), "42");
    EXPECT_EQ(Pay(), "0.00 0.00");
    EXPECT_FALSE(The<QCheckBox>("chkEmployeeActive").isChecked());
    EXPECT_FALSE(The<QLineEdit>("txtLunchLength").isEnabled());
    EXPECT_EQ(Text("txtLunchLength"), "30");
    The<QCheckBox>("chkAutoDeduct").click();
    EXPECT_TRUE(The<QLineEdit>("txtBreakLength").isEnabled());
}

TEST_F(EmployeePageTest, SavesANewEmployeeAndOffersItEverywhere)
{
    Press("cmdEmployeeNew");
    EXPECT_EQ(Keys(), "|||");
    EXPECT_EQ(Pay() + " " + Text("txtLunchLength") + " " + Text("txtBreakLength"), "0.00 0.00 0 0");
    EXPECT_TRUE(Box("cboEmployeeNumber").hasFocus());
    EnterKeys("8", "Mary Ann Orr", "444-44");
    Type(The<QLineEdit>("txtPayRate"), "9.5");
    Type(*The<DateCombo>("cboHireDate").lineEdit(), "3/1");
    The<QCheckBox>("chkEmployeeActive").setChecked(true);
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored("SELECT FirstName || '/' || LastName || ' ' || HireDate || ' ' || PayRate AS x FROM Employee WHERE EmployeeID = 43"),
              std::vector<std::string>{"Mary/Ann Orr 2003-03-01 00:00:00 9.5"});
    EXPECT_EQ(Keys(), "|||");
    EXPECT_GE(Box("cboTCEmployeeName").findText("Mary Ann Orr"), 0);
    EXPECT_GE(Box("cboEmployeeID").findText("43"), 0);
    EXPECT_EQ(Box("cboTCEmployeeName").findText("Bo Kim"), -1);
}

TEST_F(EmployeePageTest, SavesWhatWasChangedAndNothingElse)
{
    Pick(Box("cboEmployeeID"), "40");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{kAnnAtFirst});
    Pick(Box("cboEmployeeID"), "40");
    Type(The<QLineEdit>("txtEmployeeAddr1"), "2 Quay");
    Type(*The<DateCombo>("cboHireDate").lineEdit(), "");
    Type(The<QLineEdit>("txtLunchLength"), "-5");
    Type(The<QLineEdit>("txtBreakLength"), "");
    EXPECT_EQ(Save(), Boxes());
    EXPECT_EQ(Stored(kAnn), std::vector<std::string>{"5 111-11 2 Quay 12.5 18.75 1899-12-30 00:00:00 1899-12-30 00:00:00 1 1 0 0"});
    EXPECT_EQ(Stored(kNames), (std::vector<std::string>{"40 Ann/Lee", "41 Ann/Lee", "42 Bo/Kim"}));
}

TEST_F(EmployeePageTest, RefusesInOrderAndKeepsWhatWasTyped)
{
    struct Case
    {
        const char* name;
        std::function<void()> spoil;
        ShownBox told;
    };
    const auto type = [this](const char* box, const char* text) { return [this, box, text] { Type(The<QLineEdit>(box), text); }; };
    const auto over = [this](const char* box, const char* text) { return [this, box, text] { TypeInto(Box(box), text); }; };
    for (const Case& c : {Case{"minutes beyond 16 bits", type("txtLunchLength", "32768"), kNotRead},
                          {"no minutes", type("txtLunchLength", "half"), kNotRead},
                          {"no date", over("cboReleaseDate", "soon"), kNotRead},
                          {"a number beyond 32 bits", over("cboEmployeeNumber", "2147483648"), kNotRead},
                          {"no rate", type("txtOvertimePayRate", "abc"), kWrongType},
                          {"a negative rate", type("txtPayRate", "-1"), kWrongType},
                          {"no number", over("cboEmployeeNumber", "5a"), kWrongType},
                          {"without SSN", over("cboEmployeeSSN", ""), kNoSSN},
                          {"without name", over("cboEmployeeName", ""), kNoName},
                          {"without number", over("cboEmployeeNumber", ""), kNoNumber}}) {
        if (c.told == kNotRead) {
            Pick(Box("cboEmployeeID"), "40");
        }
        c.spoil();
        The<QLineEdit>("txtEmployeeCity").setText("Harbor\u0001City"); // as pasted
        EXPECT_EQ(Save(), Boxes{c.told}) << c.name;
        EXPECT_EQ(Text("txtEmployeeCity"), "Harbor\u0001City") << c.name;
    }
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

TEST_F(EmployeePageTest, CancelClearsThePage)
{
    Pick(Box("cboEmployeeID"), "40");
    Press("cmdEmployeeCancel");
    EXPECT_EQ(Keys(), "|||");
    EXPECT_EQ(The<DateCombo>("cboHireDate").Text(), "");
    EXPECT_FALSE(The<QCheckBox>("chkAutoDeduct").isChecked());
    EXPECT_TRUE(Box("cboEmployeeName").hasFocus());
}

} // namespace

} // namespace ptk
