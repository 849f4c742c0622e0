#include "store/CJetDB.h"

#include "platform/Clock.h"
#include "platform/Failure.h"
#include "platform/ProgramFolder.h"
#include "platform/Text.h"
#include "shell/CDatabaseLocator.h"
#include "store/Backups.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/QueryParameters.h"
#include "store/RowReader.h"

#include <array>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::int16_t kSnapshot = 4;
constexpr const char* kNoSqlText = "there is no statement to run";

constexpr const char* kAllEmployees = "GetAllEmployees";
constexpr const char* kAllCompanies = "GetAllCompanies";

// Who has the display name :name, as CEmployee puts it together. A last name is all of it or what follows one of its blanks: asked for
// first, because the index of the listing finds that.
std::string HasDisplayName(const std::string& name)
{
    std::string lastNames = ":name";
    for (std::size_t blank = name.find(' '); blank != std::string::npos; blank = name.find(' ', blank + 1)) {
        lastNames += fmt::format(", SUBSTR(:name, {})", CharacterCount(name.substr(0, blank)) + 2); // counted in characters, from 1
    }
    return fmt::format("IFNULL(LastName, '') COLLATE NOCASE IN ({}) AND "
                       "IIF(IFNULL(FirstName, '') = '', IFNULL(LastName, ''), FirstName || ' ' || IFNULL(LastName, '')) = :name",
                       lastNames);
}

// Of what Update writes.
bool SameOptions(const OptionsRow& a, const OptionsRow& b)
{
    return a.PeriodLength == b.PeriodLength && a.AutoShiftStartTime == b.AutoShiftStartTime && a.AutoShiftEndTime == b.AutoShiftEndTime;
}

} // namespace

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
        m_database->m_holdFailure = m_database->m_lastFailure;
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

std::shared_ptr<CJetDB> CJetDB::Afresh() const
{
    auto fresh = std::make_shared<CJetDB>(m_programFolder);
    fresh->m_databaseName = m_databaseName;
    fresh->m_memory = m_memory;
    return fresh;
}

void CJetDB::ForgetFailure()
{
    m_lastFailure = Failure(0, "", "");
    m_conflict.reset();
}

// The file stays open after a failure, deliberately; the hold goes, or others would be locked out until the next operation.
bool CJetDB::Fail(std::int32_t errorNumber, Failure reason)
{
    m_errorNumber = errorNumber;
    m_lastFailure = std::move(reason);
    GiveUpHold();
    return false;
}

bool CJetDB::Fail(std::int32_t errorNumber, const char* reason)
{
    return Fail(errorNumber, Failure(errorNumber, "PTK", reason));
}

// An operation knows only that it found no open file; why its opening failed still stands.
bool CJetDB::FailWithoutDatabase()
{
    m_errorNumber = jetdb::NoDatabase;
    return m_lastFailure.Number() != 0 ? false : Fail(jetdb::NoDatabase, "there is no open database");
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
    try {
        const std::string path = NativePath(name).string();
        if (m_database == nullptr || m_database->Path() != path || !m_database->Reopen()) {
            m_database = std::make_unique<Engine>(path);
            Prepare(*m_database);
        }
    } catch (...) {
        const Failure reason = CurrentFailure();
        return Fail(reason.Number(), reason); // the engine's own, which tells a file in use from a damaged one
    }
    m_databaseName = name;
    m_databaseOpen = true;
    m_holdFailure = Failure(0, "", "");
    return true;
}

// The times in the edit trail are the machine's too.
void CJetDB::Prepare(Engine& engine)
{
    engine.KeepCopy([this, &engine] { BackUp(engine, BackupFolder(m_programFolder), SystemClock().Now()); });
}

bool CJetDB::JoinHold()
{
    try {
        if (m_holdFailure.Number() != 0) {
            throw m_holdFailure;
        }
        m_database->Hold(); // gone where something was stored meanwhile
    } catch (...) {
        const Failure reason = CurrentFailure();
        return Fail(reason.Number(), reason);
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

std::shared_ptr<RecordSet> CJetDB::ExecuteSelect(const std::string& sqlstring)
{
    ForgetFailure();
    if (sqlstring.empty() && m_sql.empty()) {
        Fail(jetdb::NoSql, kNoSqlText);
        return nullptr;
    }
    m_sql = sqlstring; // even an empty one: a stored statement only spares the check above
    if (m_recordsetType == 0) {
        m_recordsetType = kSnapshot;
    }
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    try {
        m_recSet = m_database->Select(m_sql);
        return m_recSet;
    } catch (...) {
        Fail(jetdb::StatementFailed, CurrentFailure());
        return nullptr;
    }
}

std::unique_ptr<Statement> CJetDB::PrepareSelect(const std::string& sqlstring)
{
    ForgetFailure();
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    try {
        return m_database->Prepare(sqlstring);
    } catch (...) {
        Fail(jetdb::StatementFailed, CurrentFailure());
        return nullptr;
    }
}

// One operation that writes: opens the file when it is closed and closes it after success, whoever opened it.
bool CJetDB::Change(std::int32_t errorNumber, const std::function<void()>& steps)
{
    ForgetFailure();
    OpenWhenClosed();
    const bool done = m_databaseOpen || FailWithoutDatabase();
    try {
        if (done) {
            m_database->SignAs(m_memory->author);
            m_database->StepNumber(m_stepNumber);
            m_database->Write(steps);
            TakeStep(m_database->StepNumber());
        }
    } catch (const RowChanged& changed) {
        m_conflict = changed.Conflict();
        return Fail(errorNumber, changed);
    } catch (...) {
        return Fail(errorNumber, CurrentFailure()); // deliberately without closing: the next operation goes on with the open file
    }
    CloseWhenOpen();
    return done;
}

// Of the writes of one Step, the first that leaves an entry gives the number.
void CJetDB::TakeStep(std::int64_t step)
{
    if (m_steps == 0 || step != 0) {
        m_memory->lastStep = step;
        m_stepNumber = m_steps > 0 ? step : 0;
    }
}

bool CJetDB::ExecuteAction(const std::string& sqlstring)
{
    if (sqlstring.empty() && m_sql.empty()) {
        Fail(jetdb::NoSql, kNoSqlText);
        CloseWhenOpen();
        return false;
    }
    m_sql = sqlstring;
    return Change(jetdb::StatementFailed, [&] { m_database->Run(m_sql); });
}

bool CJetDB::ExecuteActions(std::span<const std::string> statements)
{
    if (statements.empty()) {
        return true;
    }
    m_sql = statements.back();
    return Change(jetdb::StatementFailed, [&] {
        for (const std::string& statement : statements) {
            m_database->Run(statement);
        }
    });
}

bool CJetDB::ExecuteSteps(const std::function<void(Engine& engine)>& steps)
{
    return Change(jetdb::StatementFailed, [&] { steps(*m_database); });
}

bool CJetDB::SaveTimeRecords(std::span<const TimeRecordWrite> records)
{
    if (records.empty()) {
        return true;
    }
    m_sql = records.back().statement;
    return Change(jetdb::StatementFailed, [&] {
        for (const TimeRecordWrite& record : records) {
            if (record.asRead) {
                RequireAsRead(*m_database, *record.asRead);
            }
            m_database->Run(record.statement);
        }
    });
}

bool CJetDB::UpdateOptions(const std::string& sqlstring, const OptionsRow& options, const OptionsRow& asRead)
{
    m_sql = sqlstring;
    return Change(jetdb::StatementFailed, [&] {
        const OptionsRow present = PresentOptions(*m_database);
        if (SameOptions(options, present) || SameOptions(options, asRead)) {
            return; // where only somebody else changed them, theirs stay
        }
        RequireAsRead(present, asRead);
        m_database->Run(m_sql);
    });
}

void CJetDB::RememberPassword(std::int32_t employeeID, const std::string& before, const std::string& after)
{
    if (before != after) {
        m_memory->passwords.push_back({m_memory->lastStep, employeeID, before, after});
    }
}

bool CJetDB::AddNewEmployee(const EmployeeRow& theemployee)
{
    const bool added = Change(jetdb::InsertFailed, [&] { m_database->RunStored("AddNewEmployee", AddNewEmployeeParameters(theemployee)); });
    if (added) {
        RememberPassword(0, "", theemployee.Password);
    }
    return added;
}

bool CJetDB::UpdateEmployee(const EmployeeRow& theemployee)
{
    return Change(jetdb::UpdateFailed, [&] { m_database->RunStored("UpdateEmployee", UpdateEmployeeParameters(theemployee)); });
}

bool CJetDB::UpdateEmployee(const EmployeeRow& theemployee, const EmployeeRow& asRead)
{
    const bool updated = Change(jetdb::UpdateFailed, [&] {
        RequireAsRead(*m_database, asRead);
        m_database->RunStored("UpdateEmployee", UpdateEmployeeParameters(theemployee));
    });
    if (updated) {
        RememberPassword(asRead.EmployeeID, asRead.Password, theemployee.Password);
    }
    return updated;
}

bool CJetDB::DeleteEmployee(const EmployeeRow& /*theemployee*/)
{
    return false;
}

bool CJetDB::AddNewCompany(const CompanyRow& thecompany)
{
    return Change(jetdb::InsertFailed, [&] { m_database->RunStored("AddNewCompany", AddNewCompanyParameters(thecompany)); });
}

bool CJetDB::UpdateCompany(const CompanyRow& thecompany)
{
    return Change(jetdb::UpdateFailed, [&] { m_database->RunStored("UpdateCompany", UpdateCompanyParameters(thecompany)); });
}

bool CJetDB::UpdateCompany(const CompanyRow& thecompany, const CompanyRow& asRead)
{
    return Change(jetdb::UpdateFailed, [&] {
        RequireAsRead(*m_database, asRead);
        m_database->RunStored("UpdateCompany", UpdateCompanyParameters(thecompany));
    });
}

bool CJetDB::DeleteCompany(const CompanyRow& /*thecompany*/)
{
    return false;
}

// `listing` answers a snapshot: its count is the number of all its rows.
template <typename Listing>
std::shared_ptr<RecordSet> CJetDB::OpenListing(Listing listing)
{
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    try {
        auto rows = listing();
        return rows->RecordCount() >= 0 || Fail(jetdb::NegativeCount, "the listing has a negative number of rows") ? rows : nullptr;
    } catch (...) {
        Fail(jetdb::ListingFailed, CurrentFailure());
        return nullptr;
    }
}

std::shared_ptr<RecordSet> CJetDB::OpenEmployeeQuery()
{
    return OpenListing([this] { return m_database->SelectStored(kAllEmployees); });
}

std::shared_ptr<RecordSet> CJetDB::OpenCompanyQuery()
{
    return OpenListing([this] { return m_database->SelectStored(kAllCompanies); });
}

bool CJetDB::LoadEmployeeList(EmployeeSink& thelist)
{
    ForgetFailure();
    OpenWhenClosed();
    return FillEmployees(thelist, OpenEmployeeQuery());
}

bool CJetDB::LoadEmployeesNamed(EmployeeSink& thelist, const std::string& thename)
{
    ForgetFailure();
    OpenWhenClosed();
    const std::array parameters{Parameter{"name", thename}};
    return FillEmployees(thelist,
                         OpenListing([&] { return m_database->SelectStored(kAllEmployees, HasDisplayName(thename), parameters); }));
}

bool CJetDB::FillEmployees(EmployeeSink& thelist, const std::shared_ptr<RecordSet>& rows)
{
    if (rows == nullptr) {
        return false;
    }
    try {
        RowReader reader(*rows, EmployeeTable());
        for (std::int32_t position = 1; position <= rows->RecordCount(); ++position) {
            thelist.InsertLoaded(reader.ReadEmployee(), position); // deliberately not asked, unlike a company's list
            rows->MoveNext();
        }
    } catch (...) {
        return Fail(jetdb::ListingFailed, CurrentFailure());
    }
    CloseWhenOpen();
    return true;
}

bool CJetDB::LoadCompanyList(CompanySink& thelist)
{
    ForgetFailure();
    OpenWhenClosed();
    const auto rows = OpenCompanyQuery();
    // Deliberately by the number, which no member resets: one left by an earlier operation ends the load as well.
    if (m_errorNumber == jetdb::NegativeCount || m_errorNumber == jetdb::ListingFailed || m_errorNumber == jetdb::NoDatabase) {
        return m_lastFailure.Number() != 0 ? false : Fail(m_errorNumber, "the companies are not listed after an earlier failure");
    }
    try {
        RowReader reader(*rows, CompanyTable());
        for (std::int32_t position = 1; position <= rows->RecordCount(); ++position) {
            if (!thelist.InsertLoaded(reader.ReadCompany(), position)) {
                m_errorNumber = jetdb::WorkingReferenceLost;
            }
            rows->MoveNext();
        }
    } catch (...) {
        return Fail(jetdb::ListingFailed, CurrentFailure());
    }
    CloseWhenOpen();
    return true;
}

} // namespace ptk
