// Of CJetDB: employees and companies between their tables and the lists above.
#include "platform/Succeeds.h"
#include "platform/Text.h"
#include "store/CJetDB.h"
#include "store/DisplayNameSQL.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/QueryParameters.h"
#include "store/RowReader.h"

#include <array>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kAllEmployees = "GetAllEmployees";
constexpr const char* kAllCompanies = "GetAllCompanies";

// Who has the display name :name. A last name is all of it or what follows one of its blanks: asked for
// first, because the index of the listing finds that.
std::string HasDisplayName(const std::string& name)
{
    std::string lastNames = ":name";
    for (std::size_t blank = name.find(' '); blank != std::string::npos; blank = name.find(' ', blank + 1)) {
        lastNames += fmt::format(", SUBSTR(:name, {})", CharacterCount(name.substr(0, blank)) + 2); // counted in characters, from 1
    }
    return fmt::format("IFNULL(LastName, '') COLLATE NOCASE IN ({}) AND {} = :name", lastNames, kDisplayNameSql);
}

} // namespace

// Also an empty one, and one that took the place of none at all: the trail tells only that it changed.
void CJetDB::RememberPassword(std::int32_t employeeID, const std::string& before, const std::string& after)
{
    m_memory->passwords.push_back({m_memory->lastStep, employeeID, before, after});
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
    std::shared_ptr<RecordSet> rows;
    const bool listed = Succeeds(
        [&] {
            rows = listing();
            return rows->RecordCount() >= 0 || Fail(jetdb::NegativeCount, "the listing has a negative number of rows");
        },
        FailingWith(jetdb::ListingFailed));
    return listed ? rows : nullptr;
}

std::shared_ptr<RecordSet> CJetDB::OpenEmployeeQuery()
{
    return OpenListing([this] { return m_database->SelectStored(kAllEmployees); });
}

std::shared_ptr<RecordSet> CJetDB::OpenCompanyQuery()
{
    return OpenListing([this] { return m_database->SelectStored(kAllCompanies); });
}

// The rows one after the other, as far as they can be read.
template <typename Take>
bool CJetDB::Fill(RecordSet& rows, const TableColumns& table, Take take)
{
    const auto fill = [&] {
        RowReader reader(rows, table);
        for (std::int32_t position = 1; position <= rows.RecordCount(); ++position) {
            take(reader, position);
            rows.MoveNext();
        }
    };
    if (!Succeeds(fill, FailingWith(jetdb::ListingFailed))) {
        return false;
    }
    CloseWhenOpen();
    return true;
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
    return Fill(*rows, EmployeeTable(), [&](RowReader& reader, std::int32_t position) {
        thelist.InsertLoaded(reader.ReadEmployee(), position); // deliberately not asked, unlike a company's list
    });
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
    return Fill(*rows, CompanyTable(), [&](RowReader& reader, std::int32_t position) {
        if (!thelist.InsertLoaded(reader.ReadCompany(), position)) {
            m_errorNumber = jetdb::WorkingReferenceLost;
        }
    });
}

} // namespace ptk
