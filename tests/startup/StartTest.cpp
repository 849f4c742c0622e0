#include "StartupFixture.h"

#include "model/CCompanyList.h"
#include "model/CEmployeeList.h"
#include "store/CSystemOptions.h"

#include <cstdlib>
#include <sys/stat.h>

using namespace ptk;

namespace {

using Texts = std::vector<std::string>;

const std::string kUnusableDatabase = "Database Open Error: The database cannot be opened because it is missing or corrupt.";
const std::string kOptionsUnread = "System Configuration Error: An error occurred while loading system options. Check these options before "
                                   "continuing program usage.";
const std::string kListsUnbuilt = "List Construction Error: An error occurred while loading the data lists. The program may not function "
                                  "correctly until this error is corrected.";

class StartTest : public StartupFixture
{
};

TEST_F(StartTest, AValidLoginBringsUpTheMainWindowOnTheSharedObjects)
{
    program.Start();
    ASSERT_NE(program.Controller(), nullptr);
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_TRUE(ends.empty());
    EXPECT_EQ(Log(), kLogBegin);

    CController& controller = Controller();
    EXPECT_EQ(controller.ControllerWindow(), windows.main);
    EXPECT_EQ(windows.main->displayed, controller.SystemOptions());
    EXPECT_EQ(windows.login->employeeList, controller.EmployeeList());
    EXPECT_EQ(controller.SystemOptions()->PeriodLength(), 14);
    EXPECT_EQ(controller.EmployeeList()->Count(), 1);
    EXPECT_EQ(controller.CompanyList()->Count(), 0);
    EXPECT_NE(controller.TimeRecordFactory(), nullptr);
    EXPECT_FALSE(controller.PTKDatabase()->DatabaseOpen());
    EXPECT_EQ(controller.ErrorNumber(), 0);
}

TEST_F(StartTest, ARefusedLoginEndsTheProgram)
{
    windows.loginValid = false;
    program.Start();
    EXPECT_EQ(ends, std::vector{EXIT_FAILURE});
    EXPECT_EQ(program.Controller(), nullptr);
    EXPECT_EQ(windows.main, nullptr);
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(Log(), kLogBegin + kLogEnd);
}

TEST_F(StartTest, ADatabaseThatCannotBeOpenedStopsBeforeTheLogin)
{
    CJetDB holder(folder.Path());
    struct Case
    {
        const char* name;
        std::function<void()> spoil;
        std::string logged;
    };
    const std::string database = NativePath(databasePath).string();
    const std::string configuration = NativePath(configPath).string();
    const auto remove = [](const std::string& path) { std::filesystem::remove(NativePath(path)); };
    for (const Case& c :
         {Case{"held by another", [&] { ASSERT_TRUE(holder.OpenDB(databasePath)); },
               "5 : the database is in use by another program: " + database},
          Case{"corrupt", [&] { WriteBytes(databasePath, std::string(4096, 'x')); },
               "26 : the file is not a database of this program: " + database},
          Case{"missing", [&] { remove(databasePath); }, "14 : the database file is missing or cannot be opened: " + database},
          Case{"no such key", [&] { WriteBytes(configPath, "[PTK]\r\n"); }, "403 : the configuration names no database: " + configuration},
          Case{"no configuration", [&] { remove(configPath); }, "53 : File not found: " + configuration}}) {
        SCOPED_TRACE(c.name);
        c.spoil();
        program.Start();
        holder.CloseDB();
        EXPECT_EQ(Boxes(), Texts{kUnusableDatabase});
        EXPECT_EQ(desktop.boxes.front().icon, Icon::Exclamation);
        EXPECT_EQ(windows.login, nullptr);
        EXPECT_EQ(Controller().ControllerWindow(), nullptr);
        EXPECT_EQ(Log(), kLogBegin + "Error: " + c.logged + "\r\n");
        EXPECT_TRUE(ends.empty());
        desktop.boxes.clear();
    }
    EXPECT_FALSE(std::filesystem::exists(NativePath(databasePath)));
}

TEST_F(StartTest, AConfigurationThatIsNoFileIsLoggedAndNotWaitedFor)
{
    std::filesystem::remove(NativePath(configPath));
    ::mkfifo(NativePath(configPath).c_str(), 0600);
    program.Start();
    EXPECT_EQ(Boxes(), Texts{kUnusableDatabase});
    EXPECT_EQ(Log(), kLogBegin + "Error: 75 : Path/File access error: " + NativePath(configPath).string() + "\r\n");
}

TEST_F(StartTest, UnreadableOptionsAreToldAndLogged)
{
    Run("DELETE FROM _System;");
    program.Start();
    EXPECT_EQ(Boxes(), Texts{kOptionsUnread});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Exclamation);
    EXPECT_EQ(Log(), kLogBegin + "Error: 3021 : No current record\r\n");
    EXPECT_NE(Controller().ControllerWindow(), nullptr);
    EXPECT_EQ(Controller().SystemOptions()->PeriodLength(), 0);
}

TEST_F(StartTest, AnUnbuiltListEndsTheProgramAfterTryingTheOthers)
{
    class Watching final : public RecordingDesktop
    {
    public:
        Answer MessageBox(const std::string& text, const std::string& title, Icon icon, Buttons buttons) override
        {
            onBox();
            return RecordingDesktop::MessageBox(text, title, icon, buttons);
        }
        std::function<void()> onBox;
    };
    Run("DELETE FROM _StoredQuery WHERE name = 'GetAllCompanies';");
    Watching watching;
    AdminMain main(folder.Path(), watching, clock, windows, [this](int status) { ends.push_back(status); });
    watching.onBox = [&] {
        EXPECT_EQ(main.Controller()->EmployeeList()->Count(), 1);
        EXPECT_NE(main.Controller()->TimeRecordFactory(), nullptr);
    };
    main.Start();
    ASSERT_EQ(watching.boxes.size(), 1U);
    EXPECT_EQ(watching.boxes[0].title + ": " + watching.boxes[0].text, kListsUnbuilt);
    EXPECT_EQ(watching.boxes[0].icon, Icon::Critical);
    EXPECT_EQ(windows.login, nullptr);
    EXPECT_EQ(ends, std::vector{EXIT_FAILURE});
    EXPECT_EQ(Log(),
              kLogBegin + "Error: 411 : The list of companies could not be loaded: there is no stored query GetAllCompanies\r\n" + kLogEnd);
}

TEST_F(StartTest, AFailureOnTheWayIsShownAndLogged)
{
    WriteBytes(configPath, "DatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=perhaps\r\n");
    program.Start();
    EXPECT_EQ(Boxes(), Texts{"Error Number: 13: The following error ocurred in module \r\nError Source: PTK\r\n13: Type mismatch"});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Critical);
    EXPECT_EQ(Log(), kLogBegin + "Program Construction Error: 13 : Type mismatch\r\n");
    EXPECT_TRUE(ends.empty());
    EXPECT_FALSE(windows.login->shown);
    EXPECT_EQ(Controller().ControllerWindow(), nullptr);
}

TEST_F(StartTest, AMainWindowThatCannotShowTheOptionsStays)
{
    windows.mainDisplays = false;
    program.Start();
    EXPECT_EQ(Boxes(), Texts{kOptionsUnread});
    EXPECT_NE(Controller().ControllerWindow(), nullptr);
}

TEST_F(StartTest, WithoutALogTheProgramRunsAndLogsNothing)
{
    std::filesystem::create_directory(NativePath(logPath));
    windows.loginValid = false;
    program.Start();
    EXPECT_EQ(Boxes(), Texts{"Log Open Error: An error occurred opening the errorlog for writing."});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Critical);
    EXPECT_TRUE(windows.login->shown);
    EXPECT_EQ(ends, std::vector{EXIT_FAILURE});
}

TEST_F(StartTest, EachRunStartsAFreshLog)
{
    WriteBytes(logPath, "of the last time\r\n");
    windows.loginValid = false;
    program.Start();
    EXPECT_EQ(Log(), kLogBegin + kLogEnd);
}

} // namespace
