#include "store/CJetDB.h"

#include "platform/Failure.h"
#include "platform/ProgramFolder.h"
#include "shell/CDatabaseLocator.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/QueryParameters.h"
#include "store/RowReader.h"

namespace ptk {

namespace {

constexpr std::int16_t kSnapshot = 4;
}

CJetDB::CJetDB(std::string programFolder)
    : m_databaseName(programFolder + "\\system\\ptk_11.mdb"), m_programFolder(std::move(programFolder))
{
}

CJetDB::~CJetDB() = default;

bool CJetDB::Fail(std::int32_t errorNumber)
{
    m_errorNumber = errorNumber;
    return false;
}

bool CJetDB::HasOpenDatabase() const
{
    return m_database != nullptr && m_database->IsOpen();
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
    const std::string name = paramName.empty() ? m_databaseName : paramName;
    if (name.empty()) {
        return Fail(jetdb::NoDatabase);
    }
    CloseDB(); // a hold of our own would lock us out like anybody else's
    try {
        m_database = std::make_unique<Engine>(NativePath(name).string());
    } catch (...) {
        return Fail(CurrentFailure().Number()); // the engine's own, which tells a file in use from a damaged one
    }
    m_databaseName = name;
    m_databaseOpen = true;
    return true;
}

bool CJetDB::CloseDB()
{
    if (m_database == nullptr) {
        return false;
    }
    m_database->Close();
    m_databaseOpen = false;
    return true;
}

std::shared_ptr<RecordSet> CJetDB::ExecuteSelect(const std::string& sqlstring)
{
    if (sqlstring.empty() && m_sql.empty()) {
        Fail(jetdb::NoSql);
        return nullptr;
    }
    m_sql = sqlstring; // even an empty one: a stored statement only spares the check above
    if (m_recordsetType == 0) {
        m_recordsetType = kSnapshot;
    }
    if (!HasOpenDatabase()) {
        Fail(jetdb::NoDatabase);
        return nullptr;
    }
    try {
        m_recSet = m_database->Select(m_sql);
        return m_recSet;
    } catch (...) {
        Fail(jetdb::StatementFailed);
        return nullptr;
    }
}

bool CJetDB::ExecuteAction(const std::string& sqlstring)
{
    OpenWhenClosed(); // when that fails, its number gives way to 403 below: an operation knows only that it found no open file
    bool done = false;
    try {
        if (sqlstring.empty() && m_sql.empty()) {
            Fail(jetdb::NoSql);
        } else {
            m_sql = sqlstring;
            done = HasOpenDatabase() || Fail(jetdb::NoDatabase);
            if (done) {
                m_database->Execute(m_sql);
            }
        }
    } catch (...) {
        return Fail(jetdb::StatementFailed); // deliberately without closing: the next operation goes on with the open file
    }
    CloseWhenOpen();
    return done;
}

template <typename Parameters>
bool CJetDB::RunStored(const char* query, Parameters parameters, std::int32_t errorNumber)
{
    OpenWhenClosed();
    const bool done = HasOpenDatabase() || Fail(jetdb::NoDatabase);
    try {
        if (done) {
            m_database->ExecuteStored(query, parameters());
        }
    } catch (...) {
        return Fail(errorNumber); // deliberately without closing, as above
    }
    CloseWhenOpen();
    return done;
}

bool CJetDB::AddNewEmployee(const EmployeeRow& theemployee)
{
    return RunStored(
        "AddNewEmployee", [&] { return AddNewEmployeeParameters(theemployee); }, jetdb::InsertFailed);
}

bool CJetDB::UpdateEmployee(const EmployeeRow& theemployee)
{
    return RunStored(
        "UpdateEmployee", [&] { return UpdateEmployeeParameters(theemployee); }, jetdb::UpdateFailed);
}

bool CJetDB::DeleteEmployee(const EmployeeRow& /*theemployee*/)
{
    return false;
}

bool CJetDB::AddNewCompany(const CompanyRow& thecompany)
{
    return RunStored(
        "AddNewCompany", [&] { return AddNewCompanyParameters(thecompany); }, jetdb::InsertFailed);
}

bool CJetDB::UpdateCompany(const CompanyRow& thecompany)
{
    return RunStored(
        "UpdateCompany", [&] { return UpdateCompanyParameters(thecompany); }, jetdb::UpdateFailed);
}

bool CJetDB::DeleteCompany(const CompanyRow& /*thecompany*/)
{
    return false;
}

std::shared_ptr<RecordSet> CJetDB::OpenListing(const char* query)
{
    if (!HasOpenDatabase()) {
        Fail(jetdb::NoDatabase);
        return nullptr;
    }
    try {
        auto rows = m_database->SelectStored(query); // a snapshot: its count is the number of all its rows
        return rows->RecordCount() >= 0 || Fail(jetdb::NegativeCount) ? rows : nullptr;
    } catch (...) {
        Fail(jetdb::ListingFailed);
        return nullptr;
    }
}

std::shared_ptr<RecordSet> CJetDB::OpenEmployeeQuery()
{
    return OpenListing("GetAllEmployees");
}

std::shared_ptr<RecordSet> CJetDB::OpenCompanyQuery()
{
    return OpenListing("GetAllCompanies");
}

bool CJetDB::LoadEmployeeList(EmployeeSink& thelist)
{
    OpenWhenClosed();
    const auto rows = OpenEmployeeQuery();
    if (rows == nullptr) {
        return false;
    }
    try {
        RowReader reader(*rows, EmployeeColumns());
        for (std::int32_t position = 1; position <= rows->RecordCount(); ++position) {
            thelist.InsertLoaded(reader.ReadEmployee(), position); // deliberately not asked, unlike a company's list
            rows->MoveNext();
        }
    } catch (...) {
        return Fail(jetdb::ListingFailed);
    }
    CloseWhenOpen();
    return true;
}

bool CJetDB::LoadCompanyList(CompanySink& thelist)
{
    OpenWhenClosed();
    const auto rows = OpenCompanyQuery();
    // Deliberately by the number, which no member resets: one left by an earlier operation ends the load as well.
    if (m_errorNumber == jetdb::NegativeCount || m_errorNumber == jetdb::ListingFailed || m_errorNumber == jetdb::NoDatabase) {
        return false;
    }
    try {
        RowReader reader(*rows, CompanyColumns());
        for (std::int32_t position = 1; position <= rows->RecordCount(); ++position) {
            if (!thelist.InsertLoaded(reader.ReadCompany(), position)) {
                Fail(jetdb::WorkingReferenceLost);
            }
            rows->MoveNext();
        }
    } catch (...) {
        return Fail(jetdb::ListingFailed);
    }
    CloseWhenOpen();
    return true;
}

} // namespace ptk
