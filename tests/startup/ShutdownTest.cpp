#include "StartupFixture.h"

#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "store/CSystemOptions.h"
#include "store/trail/TrailReader.h"

#include <cstdlib>

using namespace ptk;

namespace {

using Texts = std::vector<std::string>;

const std::string kUnusable = "Database Open Error: The database cannot be opened because it is missing or corrupt.";

class ShutdownTest : public StartupFixture
{
protected:
    void SetUp() override
    {
        program.Start();
        ASSERT_NE(program.Controller(), nullptr);
        ASSERT_NE(windows.main, nullptr);
        controller = program.Controller();
    }

    std::shared_ptr<CController> controller;
};

TEST_F(ShutdownTest, ExitSavesAndEndsOnceAlthoughItRunsTheClosingStepsTwice)
{
    controller->SystemOptions()->PeriodLength(7);
    windows.main->Exit();
    EXPECT_EQ(windows.main->unloads, 1);
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(Log(), kLogBegin + kLogEnd);
    EXPECT_EQ(ReadBytes(configPath), "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=False\r\n");
    EXPECT_EQ(StoredPeriodLength(), 7);
    const auto trail = std::make_shared<CJetDB>(folder.Path());
    EXPECT_EQ(ReadTrail(trail, {}).front().by, "Ann Lee");
    EXPECT_EQ(program.Controller(), nullptr);
    EXPECT_EQ(controller->ControllerWindow(), nullptr);
    EXPECT_EQ(controller->EmployeeList(), nullptr);
    EXPECT_EQ(controller->PTKDatabase(), nullptr);
}

TEST_F(ShutdownTest, AHeldDatabaseSavesNothingAndTheNextAttemptDoes)
{
    controller->SystemOptions()->PeriodLength(7);
    CJetDB holder(folder.Path());
    ASSERT_TRUE(holder.OpenDB());
    EXPECT_FALSE(controller->Cleanup());
    EXPECT_EQ(Boxes(), Texts{kUnusable});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Exclamation);
    EXPECT_TRUE(ends.empty());
    EXPECT_EQ(Log(), kLogBegin + "Error: 5 : the database is in use by another program: " + NativePath(databasePath).string() + "\r\n");
    EXPECT_TRUE(ReadBytes(configPath).ends_with("ShowLoginHelp=True\r\n"));

    holder.CloseDB();
    EXPECT_EQ(StoredPeriodLength(), 14);
    EXPECT_FALSE(controller->Cleanup());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
    EXPECT_EQ(StoredPeriodLength(), 7);
}

TEST_F(ShutdownTest, OptionsThatCannotBeSavedAreToldAndTheRestIsSaved)
{
    Run("DROP TABLE _System;");
    windows.main->Exit();
    EXPECT_EQ(Boxes(),
              Texts{"Update Options Error: An error occurred while saving program options. Please check the program options on next use."});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Exclamation);
    EXPECT_TRUE(ReadBytes(configPath).ends_with("ShowLoginHelp=False\r\n"));
    EXPECT_EQ(Log(), kLogBegin + "Error: 407 : The options could not be stored: no such table: _System\r\n" + kLogEnd);
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
}

TEST_F(ShutdownTest, AConfigurationThatCannotBeSavedIsToldAndLogged)
{
    std::filesystem::remove(NativePath(configPath));
    std::filesystem::create_directory(NativePath(configPath));
    windows.main->Exit();
    EXPECT_EQ(Boxes(), Texts{"Update Configuration Error: An error occurred while saving program configuration settings. Please check the "
                             "program configuration before next use."});
    EXPECT_EQ(desktop.boxes.front().icon, Icon::Exclamation);
    EXPECT_EQ(Log(), kLogBegin + "Error: 75 : Path/File access error: " + NativePath(configPath).string() + "\r\n" + kLogEnd);
    EXPECT_EQ(ends, std::vector{EXIT_SUCCESS});
}

TEST_F(ShutdownTest, ReloadsIntoTheListsThatEveryoneHolds)
{
    const std::shared_ptr<CEmployeeList> list = controller->EmployeeList();
    Run("INSERT INTO Employee (LastName, Active, AutoDeduct) VALUES ('Lee', 1, 0);");
    EXPECT_TRUE(controller->GetEmployeeList());
    EXPECT_EQ(controller->EmployeeList(), list);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_TRUE(controller->GetCompanyList());
    EXPECT_FALSE(controller->GetTimeCardList());
}

TEST_F(ShutdownTest, EmptiesTheFactorysListOnceThereIsOne)
{
    EXPECT_FALSE(controller->StartTimeRecordFactory());
    EXPECT_EQ(Log(), kLogBegin + "Error: 91 : Object variable not set\r\n") << "no list to empty yet";

    const auto factory = controller->TimeRecordFactory();
    factory->BuildList(39, DateTime(), DateTime());
    factory->TimeRecordList()->AddNew(std::make_shared<CTimeRecord>());
    EXPECT_TRUE(controller->StartTimeRecordFactory());
    EXPECT_EQ(controller->TimeRecordFactory(), factory);
    EXPECT_EQ(factory->TimeRecordList()->Count(), 0);
}

TEST_F(ShutdownTest, TheConfigurationIsNotHandedOut)
{
    try {
        FAIL() << "handed out: " << controller->ConfigFile();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 91);
    }
}

} // namespace
