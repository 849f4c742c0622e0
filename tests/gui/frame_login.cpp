// From the start of the program through the login to the end of the session.
#include "gui/GuiFixture.h"
#include "store/whole/BulkWriter.h"
#include "ui/login/FLogin.h"

namespace ptk {

namespace {

using Boxes = std::vector<ShownBox>;
const ShownBox kNull{"You may not log in with a null name or password.", "Invalid Login", Icon::Exclamation, Buttons::Ok};
const ShownBox kInvalid{"Invalid Login Name or Password.", "Invalid Login", Icon::Exclamation, Buttons::Ok};
constexpr auto kAfterHelp = "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n";

// Mia Poe has the password "Clock 9", Tom Ray has none, a second Mia Poe has "other".
void AddFrameLoginStaff(BulkWriter& writer)
{
    struct Person
    {
        const char* firstName;
        const char* lastName;
        const char* password;
    };
    for (const Person& person : {Person{"Mia", "Poe", "Clock 9"}, {"Tom", "Ray", ""}, {"Mia", "Poe", "other"}}) {
        EmployeeRow row;
        row.FirstName = person.firstName;
        row.LastName = person.lastName;
        row.Password = person.password;
        writer.AddEmployee(row);
    }
}

void TryLogin(QDialog& login, const char* name, const char* password)
{
    Find<QLineEdit>(login, "txtName").setText(name);
    Find<QLineEdit>(login, "txtPassword").setText(password);
    Click(login, "cmdLogin");
}

class LoginTest : public testing::Test
{
protected:
    // Starts the program; `script` acts in the login window.
    void Start(std::function<void(QDialog&)> script)
    {
        const ExpectedModal login(std::move(script));
        program.Start();
    }

    GuiProgram program{AddFrameLoginStaff};
};

TEST_F(LoginTest, AFirstLoginIsHelpedOnceAndIsRememberedAtTheEnd)
{
    Start([](QDialog& login) {
        EXPECT_EQ(login.windowTitle(), "PTK - Administrator - Login");
        const ExpectedModal help([](QDialog& window) {
            EXPECT_EQ(window.windowTitle(), "First-Time Login Help");
            EXPECT_EQ(Find<QLabel>(window, "Label2").text(), "Login: administrator");
            EXPECT_EQ(Find<QLabel>(window, "Label3").text(), "Password: wharf271");
            Click(window, "cmdOK");
        });
        EXPECT_TRUE(Find(login, "cmdHelp").isVisible());
        Click(login, "cmdHelp");
        EXPECT_TRUE(Find(login, "cmdHelp").isVisible());
        TryLogin(login, "administrator", "wharf271");
    });
    EXPECT_TRUE(program.Main().isVisible());
    program.Main().close();
    EXPECT_EQ(program.ended, 1);
    EXPECT_EQ(program.desktop.Take(), Boxes());
    EXPECT_EQ(ReadBytes(program.configPath), kAfterHelp);

    GuiProgram next;
    WriteBytes(next.configPath, kAfterHelp);
    const ExpectedModal login([](QDialog& window) {
        EXPECT_FALSE(Find(window, "cmdHelp").isVisible());
        window.reject();
    });
    next.Start();
}

TEST_F(LoginTest, HelpThatIsFollowedByNoLoginIsForgotten)
{
    const std::string before = ReadBytes(program.configPath);
    Start([](QDialog& login) {
        const ExpectedModal help([](QDialog& window) {
            Find<QCheckBox>(window, "chkHideDialog").click();
            Click(window, "cmdOK");
        });
        Click(login, "cmdHelp");
        Click(login, "cmdCancel");
    });
    EXPECT_EQ(program.ended, 1);
    EXPECT_EQ(ReadBytes(program.configPath), before);
}

TEST_F(LoginTest, RefusesAndKeepsWhatWasTyped)
{
    struct Case
    {
        const char* name;
        const char* password;
        const ShownBox& box;
    };
    Start([this](QDialog& login) {
        for (const Case& c : {Case{"", "", kNull},
                              {"Mia Poe", "", kNull},
                              {"", "Clock 9", kNull},
                              {"Nobody", "Clock 9", kInvalid},
                              {"Mia Poe", "clock 9", kInvalid},
                              {"Mia Poe", "Clock 9 ", kInvalid},
                              {"mia Poe", "Clock 9", kInvalid},
                              {"Mia Poe ", "Clock 9", kInvalid},
                              {"Mia Poe", "other", kInvalid}, // the first of two namesakes is checked
                              {"Tom Ray", "anything", kInvalid},
                              {"Poe", "Clock 9", kInvalid}}) {
            TryLogin(login, c.name, c.password);
            EXPECT_EQ(program.desktop.Take(), Boxes{c.box}) << c.name << "/" << c.password;
            EXPECT_EQ(Find<QLineEdit>(login, "txtName").text(), c.name);
            EXPECT_EQ(Find<QLineEdit>(login, "txtPassword").text(), c.password);
            ASSERT_TRUE(login.isVisible());
        }
        TryLogin(login, "Mia Poe", "Clock 9");
    });
    EXPECT_TRUE(program.Main().isVisible());
}

TEST_F(LoginTest, EndsTheProgramWhenItIsCancelledHoweverThatIsDone)
{
    const std::vector<std::function<void(QDialog&)>> ways{
        [](QDialog& login) { Click(login, "cmdCancel"); },
        [](QDialog& login) { login.close(); },
        [](QDialog& login) { QTest::keyClick(&login, Qt::Key_Escape); },
    };
    for (const auto& way : ways) {
        GuiProgram refused;
        const ExpectedModal login(way);
        refused.Start();
        EXPECT_EQ(refused.ended, 1);
        EXPECT_EQ(refused.Controller(), nullptr);
    }
}

TEST_F(LoginTest, HidesThePasswordBehindAsterisksAndLogsInWithEnter)
{
    Start([](QDialog& login) {
        auto& password = Find<QLineEdit>(login, "txtPassword");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&login));
        QTest::keyClicks(&Find<QLineEdit>(login, "txtName"), "administrator");
        QTest::keyClick(login.windowHandle(), Qt::Key_Return);
        EXPECT_TRUE(password.hasFocus()) << "the name alone asks for the password";
        QTest::keyClicks(&password, "wharf271");
        EXPECT_EQ(password.displayText(), "********");
        QTest::keyClick(login.windowHandle(), Qt::Key_Return);
    });
    EXPECT_TRUE(program.Main().isVisible());
}

TEST_F(LoginTest, WhatItWasNotGivenRefusesTheLogin)
{
    FLogin login(program.desktop);
    TryLogin(login, "Mia Poe", "Clock 9");
    EXPECT_EQ(program.desktop.Take(), Boxes{kInvalid}) << "no list of employees";

    Start([](QDialog& window) { TryLogin(window, "Mia Poe", "Clock 9"); });
    login.EmployeeList(program.Controller()->EmployeeList());
    TryLogin(login, "Mia Poe", "Clock 9");
    EXPECT_TRUE(login.LoginValid()) << "only the help's setting needs the configuration";
}

TEST_F(LoginTest, AHelpSettingThatIsNoBooleanStopsTheStart)
{
    WriteBytes(program.configPath, "DatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=maybe\r\n");
    program.Start();
    ASSERT_EQ(program.desktop.boxes.size(), 1U);
    EXPECT_EQ(program.desktop.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(program.Controller()->ControllerWindow(), nullptr);
}

} // namespace

} // namespace ptk
