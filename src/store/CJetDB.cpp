#include "store/CJetDB.h"

#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "shell/CDatabaseLocator.h"
#include "store/backup/Backups.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseName.h"
#include "store/whole/OpenDatabase.h"

#include <utility>

namespace ptk {

CJetDB::CJetDB(std::string programFolder)
    : m_databaseName(programFolder + "\\system\\ptk_11.mdb"), m_programFolder(std::move(programFolder))
{
}

CJetDB::~CJetDB() = default;

CJetDB::Hold::Hold(std::shared_ptr<CJetDB> database) : m_database(std::move(database))
{
    if (m_database == nullptr) {
        return;
    }
    if (m_database->m_holds == 0) {
        m_database->OpenDB();
        m_database->m_holdFailure = m_database->m_refusal.failure;
    }
    ++m_database->m_holds;
}

CJetDB::Hold::~Hold()
{
    if (m_database != nullptr && --m_database->m_holds == 0) {
        m_database->CloseDB();
    }
}

CJetDB::Step::Step(std::shared_ptr<CJetDB> database) : m_database(std::move(database))
{
    if (m_database != nullptr && m_database->m_steps++ == 0) {
        m_database->m_stepNumber = 0;
    }
}

CJetDB::Step::~Step()
{
    if (m_database != nullptr && --m_database->m_steps == 0) {
        m_database->m_stepNumber = 0;
    }
}

CJetDB::Reason::Reason(std::shared_ptr<CJetDB> database, std::string reason) : m_database(std::move(database))
{
    if (m_database != nullptr) {
        m_former = std::exchange(m_database->m_reason, std::move(reason));
    }
}

CJetDB::Reason::~Reason()
{
    if (m_database != nullptr) {
        m_database->m_reason = std::move(m_former);
    }
}

std::shared_ptr<CJetDB> CJetDB::SecondAccess() const
{
    auto fresh = std::make_shared<CJetDB>(m_programFolder);
    fresh->m_databaseName = m_databaseName;
    fresh->m_memory = m_memory;
    return fresh;
}

void CJetDB::ForgetFailure()
{
    m_refusal = {};
}

// Notes a failure. The file deliberately stays open; the hold is given up, or others would be locked out until the next operation.
bool CJetDB::Fail(std::int32_t errorNumber, Failure reason)
{
    m_errorNumber = errorNumber;
    m_refusal.failure = std::move(reason);
    GiveUpHold();
    return false;
}

bool CJetDB::Fail(std::int32_t errorNumber, const char* reason)
{
    return Fail(errorNumber, Failure(errorNumber, "PTK", reason));
}

// Fails with the engine's own number, which tells a file in use from a damaged one.
void CJetDB::FailOpening(const Failure& reason)
{
    Fail(reason.Number(), reason);
}

// Fails with 403. An operation only knows that it found no open database; the reason why opening it failed stays.
bool CJetDB::FailWithoutDatabase()
{
    m_errorNumber = jetdb::NoDatabase;
    return m_refusal.failure.Number() != 0 ? false : Fail(jetdb::NoDatabase, "there is no open database");
}

void CJetDB::GiveUpHold()
{
    if (m_holds == 0 && m_database != nullptr) {
        m_database->GiveUp();
    }
}

void CJetDB::OpenWhenClosed()
{
    if (!m_databaseOpen) {
        OpenDB(m_databaseName);
    }
}

void CJetDB::CloseWhenOpen()
{
    if (m_databaseOpen) {
        CloseDB();
    }
}

bool CJetDB::OpenPTKDatabase(const std::shared_ptr<CDatabaseLocator>& thedatabaselocator)
{
    m_locator = thedatabaselocator != nullptr ? thedatabaselocator : std::make_shared<CDatabaseLocator>(m_programFolder);
    if (m_locator->DatabasePath().empty()) {
        return false;
    }
    m_databaseName = m_locator->DatabasePath();
    return OpenDB(m_databaseName);
}

bool CJetDB::OpenDB(const std::string& paramName, const std::string& /*paramConnect*/, const std::string& /*paramPassword*/)
{
    ForgetFailure();
    const std::string name = paramName.empty() ? m_databaseName : paramName;
    if (name.empty()) {
        return Fail(jetdb::NoDatabase, "there is no name of a database");
    }
    return m_holds > 0 && name == m_databaseName ? JoinHold() : OpenFile(name);
}

bool CJetDB::OpenFile(const std::string& name)
{
    CloseFile(); // a hold of our own would lock us out like anybody else's
    const auto open = [&] {
        const std::string path = NativeName(name);
        if (m_database == nullptr || m_openPath != path || !m_database->Reopen()) {
            m_database = OpenEngine(path);
            m_openPath = path;
        }
    };
    if (!Succeeds(open, [this](const Failure& reason) { FailOpening(reason); })) {
        return false;
    }
    m_databaseName = name;
    m_databaseOpen = true;
    m_holdFailure = Failure(0, "", "");
    return true;
}

// Opens the database. Its backups have the machine's time, as the entries of the edit trail have.
std::unique_ptr<Engine> CJetDB::OpenEngine(const std::string& path)
{
    return OpenDatabase(path, OpenFor::Work, m_whenHeld,
                        [this](SqliteEngine& file) { BackUp(file, BackupFolder(m_programFolder), SystemClock().Now()); });
}

bool CJetDB::JoinHold()
{
    const auto hold = [this] {
        if (m_holdFailure.Number() != 0) {
            throw m_holdFailure;
        }
        m_database->Hold(); // it is gone where something was stored meanwhile
    };
    if (!Succeeds(hold, [this](const Failure& reason) { FailOpening(reason); })) {
        return false;
    }
    m_databaseOpen = true;
    return true;
}

bool CJetDB::CloseDB()
{
    if (m_database == nullptr) {
        return false;
    }
    m_databaseOpen = false;
    if (m_holds == 0) {
        CloseFile();
    }
    return true;
}

void CJetDB::CloseFile()
{
    if (m_database != nullptr) {
        m_database->Close();
    }
    m_databaseOpen = false;
}

} // namespace ptk
