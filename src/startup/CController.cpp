#include "startup/CController.h"

#include "model/CCompanyList.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "model/CTimeRecordList.h"
#include "platform/Failure.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Required.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "platform/system/VectorRegisters.h"
#include "shell/CDatabaseLocator.h"
#include "shell/CError.h"
#include "shell/CFile.h"
#include "shell/CFileAdaptor.h"
#include "startup/Notices.h"
#include "startup/Safekeeping.h"
#include "startup/Windows.h"
#include "store/backup/Restore.h"
#include "store/CJetDB.h"
#include "store/CSystemOptions.h"
#include "store/whole/DatabaseName.h"

#include <fmt/format.h>

#include <utility>

namespace ptk {

namespace {

constexpr const char* kConstructionFailed = "Program Construction Error";
constexpr const char* kOperationFailed = "Error";
constexpr const char* kNoDatabaseNamed = "the configuration names no database: ";
constexpr const char* kImportNotReadAgain = "not everything that was imported could be read: see the log";
constexpr const char* kNotReadAgain = ", but not everything in it could be read: see the log";

// A list that exists is emptied and filled again, so that whoever holds it sees the new contents.
template <typename List>
bool Reload(std::shared_ptr<List>& list, const std::shared_ptr<CJetDB>& database)
{
    if (!list) {
        list = std::make_shared<List>();
    } else {
        list->Destroy();
        list->Create();
    }
    return list->LoadList(database);
}

} // namespace

CController::CController(Surroundings surroundings)
    : m_around(std::move(surroundings)),
      m_safekeeping(std::make_unique<Safekeeping>(m_around.desktop, m_around.windows,
                                                  [this](std::int32_t number, const std::string& text) { Log(number, text); }))
{
}

CController::~CController() = default;

template <typename Operation>
bool CController::Logged(Operation operation)
{
    return Succeeds(operation, [this](const Failure& reason) { Log(reason.Number(), reason.Description()); });
}

void CController::Start()
{
    const std::shared_ptr<CController> self = shared_from_this(); // the end routine releases its reference
    Succeeds([this] { BringUp(); },
             [this](const Failure& reason) {
                 CError(m_around.desktop).MessageBox(static_cast<std::int16_t>(Icon::Critical), static_cast<std::int16_t>(Buttons::Ok));
                 LogFailure(kConstructionFailed, reason.Number(), reason.Description());
             });
}

void CController::BringUp()
{
    if (!ReadConfigFile()) {
        Tell(m_around.desktop, notice::ConfigurationUnread);
        return m_around.endRoutine(EXIT_FAILURE);
    }
    OpenAndShow();
}

void CController::OpenAndShow()
{
    if (!OpenDatabase()) {
        TellDatabaseUnopened();
        if (RestoredInstead()) {
            OpenAndShow();
        }
        return;
    }
    if (!LoadSystemOptions()) {
        Tell(m_around.desktop, notice::OptionsUnread);
    }
    if (!BuildLists()) {
        Tell(m_around.desktop, notice::ListsUnbuilt);
        return RestoredInstead() ? OpenAndShow() : m_around.endRoutine(EXIT_FAILURE);
    }
    const bool loginValid = LogIn();
    if (loginValid) {
        m_safekeeping->Begin(m_database);
        ShowMainWindow();
    }
    CloseDatabase();
    if (!loginValid) {
        m_around.endRoutine(EXIT_FAILURE);
    }
}

// Lets the user restore a backup where the database is useless; whether that was done.
bool CController::RestoredInstead()
{
    CloseDatabase();
    const BackupOrder order = Order();
    return Safekeeping::CanReplace(order) && !m_safekeeping->Restore(order, m_author).empty();
}

bool CController::LogIn()
{
    m_loginWindow = m_around.windows.CreateLoginWindow();
    m_loginWindow->ConfigFile(m_configFile);
    m_loginWindow->EmployeeList(m_employeeList);
    m_loginWindow->ShowModal();
    if (!m_loginWindow->LoginValid()) {
        return false;
    }
    m_author.name = m_loginWindow->LoggedIn();
    m_database->StoredBy(m_author);
    return true;
}

void CController::ShowMainWindow()
{
    m_controllerWindow = m_around.windows.CreateMainWindow();
    m_controllerWindow->Controller(shared_from_this());
    if (!m_controllerWindow->DisplaySystemOptions(m_systemOptions)) {
        Tell(m_around.desktop, notice::OptionsUnread);
    }
}

bool CController::Cleanup()
{
    // After a first run whose end routine did not end the process, there is nothing left to shut down.
    if (!m_configFile) {
        return false;
    }
    const std::shared_ptr<CController> self = shared_from_this(); // the end routine and the main window release their references
    Succeeds([this] { ShutDown(); });
    return false;
}

void CController::ShutDown()
{
    m_loginWindow.reset();
    if (!OpenDatabase()) {
        return TellDatabaseUnopened();
    }
    if (!StoreSystemOptions()) {
        Tell(m_around.desktop, notice::OptionsUnsaved);
    }
    CloseDatabase();
    m_safekeeping->BackUpChanges(Order(), m_database);
    if (!WriteConfigFile() || m_configFile->LastFailure().Number() != 0) {
        Tell(m_around.desktop, notice::ConfigurationUnsaved);
    }
    ReleaseObjects();
    m_around.endRoutine(EXIT_SUCCESS);
}

void CController::ReleaseObjects()
{
    m_timeRecordFactory.reset();
    m_companyList.reset();
    m_employeeList.reset();
    m_database.reset();
    m_configFile.reset();
    m_locator.reset();
}

void CController::CloseDatabase()
{
    if (m_database->DatabaseOpen()) {
        m_database->CloseDB();
    }
}

std::shared_ptr<CFileAdaptor> CController::ConfigFile() const
{
    throw Failure(failure::ObjectNotSet);
}

bool CController::OpenDatabase()
{
    return Logged([this] {
        m_database = std::make_shared<CJetDB>(m_around.programFolder);
        m_database->StoredBy(m_author);
        m_locator = std::make_shared<CDatabaseLocator>(m_around.programFolder);
        m_locator->ConfigFile(m_configFile);
        return (m_locator->GetDatabasePath() && m_database->OpenPTKDatabase(m_locator)) || LogUnopened();
    });
}

bool CController::LogUnopened()
{
    const std::string& name = m_locator->DatabasePath();
    const Failure& reason = m_database->LastFailure();
    if (!name.empty()) {
        Log(reason.Number(), reason.Description() + (IsFileName(name) ? ": " + NativeName(name) : "")); // the reason already names a server
    } else if (m_configFile->LastFailure().Number() == 0) { // a configuration file that could not be read has its own line in the log
        Log(jetdb::NoDatabase, kNoDatabaseNamed + NativePath(ConfigPath()).string());
    }
    return false;
}

bool CController::LoadSystemOptions()
{
    return Logged([this] {
        m_systemOptions = std::make_shared<CSystemOptions>();
        m_systemOptions->ConfigFile(m_configFile);
        m_systemOptions->PTKDatabase(m_database);
        return m_systemOptions->Load() || LogRefused("The options could not be read");
    });
}

bool CController::StoreSystemOptions()
{
    return Logged([this] {
        Required(m_systemOptions)->PTKDatabase(m_database);
        return m_systemOptions->Update() || LogRefused("The options could not be stored");
    });
}

// Does all three steps even when an earlier one failed, so that each failure is logged.
bool CController::BuildLists()
{
    const bool companies = GetCompanyList();
    const bool employees = GetEmployeeList();
    const bool factory = StartTimeRecordFactory();
    return companies && employees && factory;
}

bool CController::ReadConfigFile()
{
    return Logged([this] {
        if (!m_configFile) {
            m_configFile = std::make_shared<CFileAdaptor>(m_around.programFolder);
        }
        m_configFile->ReadFile(ConfigPath());
        LogConfigFailure();
        return true;
    });
}

bool CController::WriteConfigFile()
{
    return Logged([this] {
        Required(m_configFile)->WriteFile(ConfigPath());
        LogConfigFailure();
        return true;
    });
}

void CController::LogConfigFailure()
{
    const Failure& failure = m_configFile->LastFailure();
    if (failure.Number() != 0) {
        Log(failure.Number(), failure.Description() + ": " + NativePath(ConfigPath()).string());
    }
}

bool CController::GetCompanyList()
{
    return Logged([this] { return Reload(m_companyList, m_database) || LogRefused("The list of companies could not be loaded"); });
}

bool CController::GetEmployeeList()
{
    ClearUpperVectors(); // the start's longest work comes next, right after windows were shown
    return Logged([this] { return Reload(m_employeeList, m_database) || LogRefused("The list of employees could not be loaded"); });
}

bool CController::LogRefused(const std::string& what)
{
    const CJetDB& database = *Required(m_database);
    Log(database.ErrorNumber(), what + ": " + database.LastFailure().Description());
    return false;
}

bool CController::StartTimeRecordFactory()
{
    return Logged([this] {
        if (!m_timeRecordFactory) {
            m_timeRecordFactory = std::make_shared<CTimeRecordFactory>();
            m_timeRecordFactory->PTKDatabase(m_database);
            return true;
        }
        Required(m_timeRecordFactory->TimeRecordList())->Destroy();
        Required(m_timeRecordFactory->TimeRecordList())->Create();
        return true;
    });
}

bool CController::UnloadControllerWindow()
{
    if (const std::shared_ptr<MainWindow> window = std::exchange(m_controllerWindow, nullptr)) {
        window->Unload();
    }
    return false;
}

std::string CController::BackUpWhenDue()
{
    return m_safekeeping->BackUpWhenDue(Order());
}

std::string CController::BackUpNow()
{
    return m_safekeeping->BackUpNow(Order());
}

// After a restore, whoever keeps an object from before works with data that is gone: database, options and factory are new objects.
std::string CController::Restore()
{
    CloseDatabase();
    const std::string restored = m_safekeeping->Restore(Order(), m_author);
    if (restored.empty()) {
        return {};
    }
    return ReadAgain() ? restored : restored + kNotReadAgain;
}

std::string CController::RestoreRefusal() const
{
    return m_locator == nullptr ? "" : ptk::RestoreRefusal(m_locator->DatabasePath());
}

bool CController::ReadAgain()
{
    m_timeRecordFactory.reset();
    const bool read = OpenDatabase() && LoadSystemOptions() && BuildLists();
    CloseDatabase();
    return read;
}

ImportOutcome CController::ImportOldDatabase(ImportOrder order, const ImportProgress& progress)
{
    CloseDatabase();
    const BackupOrder places = Order();
    order.database = places.database;
    order.programFolder = places.programFolder;
    order.now = places.now;
    order.author = m_author;
    ImportOutcome outcome = ptk::ImportOldDatabase(order, progress);
    if (!order.trial && outcome.refusal.empty() && !ReadAgain()) {
        outcome.problem += (outcome.problem.empty() ? "" : ", and ") + std::string(kImportNotReadAgain);
    }
    return outcome;
}

BackupOrder CController::Order() const
{
    return {NativeName(Required(m_locator)->DatabasePath()), m_around.programFolder, SecondBackupFolder(), m_around.clock.Now()};
}

std::string CController::SecondBackupFolder() const
{
    return ptk::SecondBackupFolder(*Required(m_configFile));
}

PersonPlaces CController::FilesOfPersons() const
{
    return {m_around.programFolder, SecondBackupFolder()};
}

std::string CController::SecondFolderRefusal(const std::string& folder) const
{
    return ptk::SecondFolderRefusal(folder, m_around.programFolder);
}

bool CController::SecondBackupFolder(const std::string& folder)
{
    if (folder == SecondBackupFolder()) {
        return true;
    }
    ptk::SecondBackupFolder(*m_configFile, folder);
    return WriteConfigFile() && m_configFile->LastFailure().Number() == 0;
}

void CController::TellDatabaseUnopened()
{
    Tell(m_around.desktop, m_database->ErrorNumber() == jetdb::NoDatabase ? notice::DatabaseHeld : notice::DatabaseUnusable);
}

void CController::Log(std::int32_t number, const std::string& text)
{
    LogFailure(kOperationFailed, number, text);
}

void CController::LogFailure(const char* kind, std::int32_t number, const std::string& description)
{
    m_around.errorLog->WriteLine(fmt::format("{}: {} : {}", kind, number, description));
}

std::string CController::ConfigPath() const
{
    return m_around.programFolder + kConfigurationFile;
}

} // namespace ptk
