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

// Always held by std::shared_ptr: make it, then call Start once. Accessors hand out the shared objects themselves, nullptr before they
// exist and after Cleanup released them. No operation raises; failures go to the error log as "Error: number : description".
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

        // Ends the process with this status: 1 when the start failed or was cancelled. When it returns, the controller touches nothing any
        // more.
        std::function<void(int)> endRoutine;
    };

    explicit CController(Surroundings surroundings);
    ~CController();
    CController(const CController&) = delete;
    CController& operator=(const CController&) = delete;

    // The whole start-up: configuration, database, options, lists, login, main window. Returns with the main window shown, or without one
    // when the database could not be opened or a failure was met, or after the end routine (no lists, login refused).
    void Start();

    // Shutdown: saves options and configuration, releases the shared objects and runs the end routine; what could not be saved is told.
    // When the database cannot be opened it tells so, saves nothing and leaves the program to end with its last window. Harmless when
    // repeated. Deliberately always false.
    bool Cleanup();

    // No operation of the controller sets it.
    [[nodiscard]] std::int32_t ErrorNumber() const { return 0; }

    [[nodiscard]] std::shared_ptr<MainWindow> ControllerWindow() const { return m_controllerWindow; }

    // Deliberately raises Failure 91: the configuration is not handed out.
    [[nodiscard]] std::shared_ptr<CFileAdaptor> ConfigFile() const;

    [[nodiscard]] std::shared_ptr<CJetDB> PTKDatabase() const { return m_database; }
    [[nodiscard]] std::shared_ptr<CSystemOptions> SystemOptions() const { return m_systemOptions; }
    [[nodiscard]] std::shared_ptr<CTimeRecordFactory> TimeRecordFactory() const { return m_timeRecordFactory; }
    [[nodiscard]] std::shared_ptr<CCompanyList> CompanyList() const { return m_companyList; }
    [[nodiscard]] std::shared_ptr<CEmployeeList> EmployeeList() const { return m_employeeList; }

    // True also when the file could not be read: that shows up as a database that cannot be opened.
    bool ReadConfigFile();

    // True also when the file could not be written: that is logged.
    bool WriteConfigFile();

    // Reloads into the same list object.
    bool GetCompanyList();

    // Reloads into the same list object.
    bool GetEmployeeList();

    // Reserved.
    bool GetTimeCardList() { return false; }

    // Makes the factory on the present database, or empties the current list of the one there is, which keeps its first database.
    bool StartTimeRecordFactory();

    // Hides, unloads and releases the main window; a second call from its closing steps does nothing. Deliberately always false.
    bool UnloadControllerWindow();

    // See Safekeeping: for the main window once it is shown, for its menu, and what each answers for its line.
    [[nodiscard]] std::string BackUpWhenDue();
    [[nodiscard]] std::string BackUpNow();

    // Lets a backup be chosen and put back, and answers what the main window's line says of it. Where something was restored, everything
    // has been read again into objects of its own, and the options' window is to be given those that hold now.
    [[nodiscard]] std::string Restore();

    // Why the database is none that a restore could replace, a sentence without a full stop; empty where it is one.
    [[nodiscard]] std::string RestoreRefusal() const;

    // Of the order, its file and what is wanted of it count. Where something was imported, everything has been read again as after a
    // restore; what of that failed is the outcome's problem. Raises what office/Import says.
    [[nodiscard]] ImportOutcome ImportOldDatabase(ImportOrder order, const ImportProgress& progress);

    // The folder for a second copy of each backup; empty for none.
    [[nodiscard]] std::string SecondBackupFolder() const;

    // Where files beside the database may hold something about an employee.
    [[nodiscard]] PersonPlaces FilesOfPersons() const;

    // See office/BackupRun.h.
    [[nodiscard]] std::string SecondFolderRefusal(const std::string& folder) const;

    // Into the configuration file; false, with a line in the log, when that could not be written. REQUIRES: the file can hold it, see
    // office/BackupRun.
    [[nodiscard]] bool SecondBackupFolder(const std::string& folder);

    // One line for the session log, of something that went wrong outside the controller: "Error: NUMBER : TEXT", 0 where it has no number.
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

    // On a fresh database object and locator each time.
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

    // Why the database's last operation was refused; always false.
    bool LogRefused(const std::string& what);

    // Why it could not be opened; always false.
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
    Author m_author{"", "ptk-admin"}; // of what is stored
};

} // namespace ptk
