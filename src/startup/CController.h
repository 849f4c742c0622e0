// The hub of the running program: owns every shared object, brings the program up and shuts it down.
#pragma once

#include "office/import/Import.h"
#include "office/person/PersonPlaces.h"
#include "store/engine/Author.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace ptk {

class CCompanyList;
class CDatabaseLocator;
class CEmployeeList;
class CFile;
class CFileAdaptor;
class CJetDB;
class CSystemOptions;
class CTimeRecordFactory;
class Clock;
class Desktop;
class LoginWindow;
class MainWindow;
class Safekeeping;
class WindowFactory;
struct BackupOrder;

// Accessors answer the shared objects themselves, nullptr before these exist; Cleanup releases all of them but the options. Failures go to
// the error log as "Error: number : description"; only ConfigFile and ImportOldDatabase raise them. REQUIRES: a std::shared_ptr holds the
// controller, and Start is called once.
class CController : public std::enable_shared_from_this<CController>
{
public:
    struct Surroundings
    {
        std::string programFolder;
        Desktop& desktop;
        const Clock& clock;
        WindowFactory& windows;
        std::shared_ptr<CFile> errorLog; // written to only while it is open

        // Ends the process with this status: 0, or 1 when the start failed or was cancelled. The controller does nothing after it.
        std::function<void(int)> endRoutine;
    };

    explicit CController(Surroundings surroundings);
    ~CController();
    CController(const CController&) = delete;
    CController& operator=(const CController&) = delete;

    // Starts the program: configuration, database, options, lists, login, main window. Returns when the main window is shown; without one
    // when the database could not be opened or a failure occurred; or after the end routine (no configuration, no lists, login refused).
    void Start();

    // Shuts the program down: saves the options, makes a backup where one is due, saves the configuration, releases the shared objects and
    // runs the end routine; a box tells what could not be saved. When the database cannot be opened, a box says so, nothing is saved, and
    // the program ends with its last window. Harmless when repeated. Deliberately always false.
    bool Cleanup();

    // Always 0: no operation of the controller sets an error number.
    [[nodiscard]] std::int32_t ErrorNumber() const { return 0; }

    [[nodiscard]] std::shared_ptr<MainWindow> ControllerWindow() const { return m_controllerWindow; }

    // Deliberately raises Failure 91: the configuration is not handed out.
    [[nodiscard]] std::shared_ptr<CFileAdaptor> ConfigFile() const;

    [[nodiscard]] std::shared_ptr<CJetDB> PTKDatabase() const { return m_database; }
    [[nodiscard]] std::shared_ptr<CSystemOptions> SystemOptions() const { return m_systemOptions; }
    [[nodiscard]] std::shared_ptr<CTimeRecordFactory> TimeRecordFactory() const { return m_timeRecordFactory; }
    [[nodiscard]] std::shared_ptr<CCompanyList> CompanyList() const { return m_companyList; }
    [[nodiscard]] std::shared_ptr<CEmployeeList> EmployeeList() const { return m_employeeList; }

    // Reads the configuration file. True even when that failed: it is logged, and shows as a database that cannot be opened.
    bool ReadConfigFile();

    // Writes the configuration file. True even when that failed: it is logged.
    bool WriteConfigFile();

    // Loads the companies, into the same list object where there is one.
    bool GetCompanyList();

    // Loads the employees, into the same list object where there is one.
    bool GetEmployeeList();

    // Reserved; always false.
    bool GetTimeCardList() { return false; }

    // Makes the time record factory for the present database. A factory that exists keeps its first database, and its current list is
    // emptied; false where it has no list.
    bool StartTimeRecordFactory();

    // Unloads and releases the main window; a second call, from the window's own closing steps, does nothing. Deliberately always false.
    bool UnloadControllerWindow();

    // Called once the main window is shown, and by its menu; its status line shows what these answer. See Safekeeping.
    [[nodiscard]] std::string BackUpWhenDue();
    [[nodiscard]] std::string BackUpNow();

    // Lets the user choose a backup and restores it; answers what the main window's line says about that. After a restore everything has
    // been read again: database, options and factory are new objects, and the window with the options must be given the new ones.
    [[nodiscard]] std::string Restore();

    // Why a restore cannot replace this database, as a sentence without a full stop; empty where it can.
    [[nodiscard]] std::string RestoreRefusal() const;

    // Imports an older database into the configured one: database, folder, moment and author of the order are set here. After an import
    // everything has been read again as after a restore; if that failed, the outcome's problem says so. Raises what office/import raises.
    [[nodiscard]] ImportOutcome ImportOldDatabase(ImportOrder order, const ImportProgress& progress);

    // The folder for a second copy of each backup; empty for none.
    [[nodiscard]] std::string SecondBackupFolder() const;

    // The folders in which files beside the database may hold something about an employee.
    [[nodiscard]] PersonPlaces FilesOfPersons() const;

    // Why a folder cannot take the second copies: see ptk::SecondFolderRefusal.
    [[nodiscard]] std::string SecondFolderRefusal(const std::string& folder) const;

    // Sets that folder and writes the configuration file; false, with a line in the log, when that failed. REQUIRES: SecondFolderRefusal is
    // empty for it.
    [[nodiscard]] bool SecondBackupFolder(const std::string& folder);

    // Writes a line to the error log about a failure outside the controller: "Error: NUMBER : TEXT", with 0 where there is no number.
    void Log(std::int32_t number, const std::string& text);

private:
    void BringUp();
    void OpenAndShow();
    bool RestoredInstead();
    bool ReadAgain();
    bool LogIn();
    void ShowMainWindow();
    void ShutDown();
    void ReleaseObjects();

    // Makes a new database object and locator each time.
    bool OpenDatabase();

    void CloseDatabase();
    bool LoadSystemOptions();
    bool StoreSystemOptions();
    bool BuildLists();
    [[nodiscard]] std::string ConfigPath() const;
    [[nodiscard]] BackupOrder Order() const;

    void TellDatabaseUnopened();
    void LogFailure(const char* kind, std::int32_t number, const std::string& description);
    void LogConfigFailure();

    // Logs why the database's last operation was refused; always false.
    bool LogRefused(const std::string& what);

    // Logs why the database could not be opened; always false.
    bool LogUnopened();

    // The operation's answer, or false and a line in the log when it raised a failure.
    template <typename Operation>
    bool Logged(Operation operation);

    Surroundings m_around;
    std::shared_ptr<MainWindow> m_controllerWindow;
    std::shared_ptr<CFileAdaptor> m_configFile;
    std::shared_ptr<CDatabaseLocator> m_locator;
    std::shared_ptr<CJetDB> m_database;
    std::shared_ptr<CCompanyList> m_companyList;
    std::shared_ptr<CEmployeeList> m_employeeList;
    std::shared_ptr<CTimeRecordFactory> m_timeRecordFactory;
    std::shared_ptr<CSystemOptions> m_systemOptions;
    std::shared_ptr<LoginWindow> m_loginWindow;
    std::unique_ptr<Safekeeping> m_safekeeping;
    Author m_author{"", "ptk-admin"}; // the author of all that the program stores
};

} // namespace ptk
