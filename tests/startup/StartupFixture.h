// A whole program without windows of its own: the real start-up on a real database in a temporary program folder.
#pragma once

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "shell/CFileAdaptor.h"
#include "startup/AdminMain.h"
#include "startup/CController.h"
#include "startup/Windows.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "store/whole/DatabaseCreator.h"
#include "support/Files.h"
#include "support/FixedClock.h"
#include "support/RecordingDesktop.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

// A login whose outcome the test decides beforehand.
class ScriptedLogin final : public LoginWindow
{
public:
    explicit ScriptedLogin(bool valid) : m_valid(valid) {}

    void ConfigFile(std::shared_ptr<CFileAdaptor> value) override
    {
        configFile = std::move(value);
        static_cast<void>(ToBoolean(configFile->FindKeyValue("ShowLoginHelp")));
    }
    void EmployeeList(std::shared_ptr<CEmployeeList> value) override { employeeList = std::move(value); }
    void ShowModal() override
    {
        if (m_valid) {
            configFile->ReplaceLine("ShowLoginHelp", "False");
        }
        shown = true;
    }
    bool LoginValid() const override { return shown && m_valid; }
    std::string LoggedIn() const override { return "Ann Lee"; }

    std::shared_ptr<CFileAdaptor> configFile;
    std::shared_ptr<CEmployeeList> employeeList;
    bool shown = false;

private:
    bool m_valid;
};

// A main window that closes as the real one does: Unload runs its closing steps.
class ScriptedMain final : public MainWindow
{
public:
    void Controller(std::shared_ptr<CController> value) override { m_controller = std::move(value); }
    bool DisplaySystemOptions(std::shared_ptr<CSystemOptions> options) override
    {
        displayed = std::move(options);
        return displays;
    }
    void Unload() override
    {
        ++unloads;
        Exit();
    }
    void Exit() { Close(*m_controller); }
    void Release() { m_controller.reset(); }

    static void Close(CController& controller)
    {
        EXPECT_FALSE(controller.UnloadControllerWindow());
        EXPECT_FALSE(controller.Cleanup());
    }

    std::shared_ptr<CSystemOptions> displayed;
    bool displays = true;
    int unloads = 0;

private:
    std::shared_ptr<CController> m_controller;
};

// A user who lets the work go on, until the test sets `goesOn` to false.
class ScriptedProgress final : public ProgressWindow
{
public:
    bool GoOn(std::int32_t, std::int32_t) override { return goesOn; }

    bool goesOn = true;
};

// Chooses one of `files` at each call and takes it out of the list; none when the list is empty.
class ScriptedRestore final : public RestoreWindow
{
public:
    explicit ScriptedRestore(std::vector<std::string>& files) : m_files(files) {}

    std::string Choose(const std::string& folder) override
    {
        std::string file = m_files.empty() ? std::string() : folder + '/' + m_files.front();
        m_files.erase(m_files.begin(), m_files.begin() + (m_files.empty() ? 0 : 1));
        return file;
    }

private:
    std::vector<std::string>& m_files;
};

class ScriptedWindows final : public WindowFactory
{
public:
    std::shared_ptr<LoginWindow> CreateLoginWindow() override { return login = std::make_shared<ScriptedLogin>(loginValid); }
    std::shared_ptr<MainWindow> CreateMainWindow() override
    {
        main = std::make_shared<ScriptedMain>();
        main->displays = mainDisplays;
        return main;
    }
    std::shared_ptr<RestoreWindow> CreateRestoreWindow() override { return std::make_shared<ScriptedRestore>(restored); }
    std::shared_ptr<ProgressWindow> CreateProgressWindow(const ProgressWords&) override
    {
        auto progress = std::make_shared<ScriptedProgress>();
        progress->goesOn = backupGoesOn;
        return progress;
    }

    bool loginValid = true;
    bool mainDisplays = true;
    bool backupGoesOn = true;
    std::vector<std::string> restored; // names of backups, in the order in which they are chosen
    std::shared_ptr<ScriptedLogin> login;
    std::shared_ptr<ScriptedMain> main;
};

class StartupFixture : public testing::Test
{
protected:
    StartupFixture()
    {
        WriteBytes(configPath, "[PTK]\r\nDatabasePath=<app.path>\\system\\ptk_11.mdb\r\nShowLoginHelp=True\r\n");
        CreateDatabase(NativePath(databasePath).string());
    }

    // Window and controller hold each other until the window is unloaded, which some tests never do.
    void TearDown() override
    {
        if (windows.main) {
            windows.main->Release();
        }
    }

    CController& Controller() { return *program.Controller(); }

    void Run(const std::string& sql)
    {
        CJetDB database(folder.Path());
        ASSERT_TRUE(database.ExecuteAction(sql)) << sql;
    }

    std::int16_t StoredPeriodLength()
    {
        const auto database = std::make_shared<CJetDB>(folder.Path());
        CSystemOptions options;
        options.PTKDatabase(database);
        EXPECT_TRUE(database->OpenDB() && options.Load());
        return options.PeriodLength();
    }

    std::string Log() const { return ReadBytes(logPath); }

    // Each box as "title: text". Expects that it has only an OK button, as all boxes of the start-up and the shutdown have.
    std::vector<std::string> Boxes() const
    {
        std::vector<std::string> boxes;
        for (const auto& box : desktop.boxes) {
            EXPECT_EQ(box.buttons, Buttons::Ok);
            boxes.push_back(box.title + ": " + box.text);
        }
        return boxes;
    }

    static inline const std::string kLogBegin = "session begin\r\n3/5/2003 8:05:09 AM\r\n------------------------------\r\n";
    static inline const std::string kLogEnd = "------------------------------\r\nsession end\r\n3/5/2003 8:05:09 AM\r\n";

    TemporaryFolder folder;
    std::string configPath = folder.Path() + "\\system\\ptk_11.cfg";
    std::string databasePath = folder.Path() + "\\system\\ptk_11.mdb";
    std::string logPath = folder.Path() + "\\system\\errorlog.txt";
    RecordingDesktop desktop;
    FixedClock clock{DateTime({2003, 3, 5}, {8, 5, 9})};
    ScriptedWindows windows;
    std::vector<int> ends; // the exit status of each end routine that ran
    AdminMain program{folder.Path(), desktop, clock, windows, [this](int status) { ends.push_back(status); }};
};

} // namespace ptk
