// Part of CJetDB: moves employees and companies between their tables and the lists above.
#include "platform/Succeeds.h"
#include "platform/text/Text.h"
#include "store/CJetDB.h"
#include "store/DisplayNameSQL.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"
#include "store/rows/QueryParameters.h"
#include "store/rows/RowReader.h"

#include <array>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr const char* kAllEmployees = "GetAllEmployees";
constexpr const char* kAllCompanies = "GetAllCompanies";

constexpr std::int32_t kPortion = 256; // rows

// The condition for the display name :name. Its last name is all of it or what follows one of its blanks; that is asked first, because the
// index of the listing finds it.
std::string HasDisplayName(const std::string& name, const EngineWords& words)
{
    std::string lastNames = FilledIn(words.caseless, ":name");
    for (std::size_t blank = name.find(' '); blank != std::string::npos; blank = name.find(' ', blank + 1)) {
        const std::string behind = fmt::format("SUBSTR(:name, {})", CharacterCount(name.substr(0, blank)) + 2); // in characters, from 1
        lastNames += ", " + FilledIn(words.caseless, behind);
    }
    return fmt::format("{} IN ({}) AND {} = :name", words.caselessLastName, lastNames, kDisplayNameSql);
}

} // namespace

// Makes a change and remembers the password it stored, also an empty one and the first one: the trail only tells that it changed. Room for
// it is made first: once the change is stored nothing may fail any more.
bool CJetDB::Remembering(PasswordChange password, const std::function<bool()>& change)
{
    std::vector<PasswordChange>& passwords = m_memory->passwords;
    if (passwords.size() == passwords.capacity()) {
        passwords.reserve(2 * passwords.size() + 1);
    }
    if (!change()) {
        return false;
    }
    password.step = m_memory->lastStep;
    passwords.push_back(std::move(password));
    return true;
}

bool CJetDB::AddNewEmployee(const EmployeeRow& theemployee)
{
    return Remembering({0, 0, "", theemployee.Password}, [&] {
        return Change(jetdb::InsertFailed, [&] { m_database->RunStored("AddNewEmployee", AddNewEmployeeParameters(theemployee)); });
    });
}

bool CJetDB::UpdateEmployee(const EmployeeRow& theemployee)
{
    return Change(jetdb::UpdateFailed, [&] { m_database->RunStored("UpdateEmployee", UpdateEmployeeParameters(theemployee)); });
}

bool CJetDB::UpdateEmployee(const EmployeeRow& theemployee, const EmployeeRow& asRead)
{
    return Remembering({0, asRead.EmployeeID, asRead.Password, theemployee.Password}, [&] {
        return Change(jetdb::UpdateFailed, [&] {
            RequireAsRead(*m_database, asRead);
            m_database->RunStored("UpdateEmployee", UpdateEmployeeParameters(theemployee));
        });
    });
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

// Lists the companies as a snapshot: its count is the number of all its rows.
std::shared_ptr<RecordSet> CJetDB::OpenCompanyQuery()
{
    if (!m_databaseOpen) {
        FailWithoutDatabase();
        return nullptr;
    }
    std::shared_ptr<RecordSet> rows;
    const bool listed = Succeeds(
        [&] {
            rows = m_database->SelectStored(kAllCompanies);
            return rows->RecordCount() >= 0 || Fail(jetdb::NegativeCount, "the listing has a negative number of rows");
        },
        FailingWith(jetdb::ListingFailed));
    return listed ? rows : nullptr;
}

bool CJetDB::LoadEmployeeList(EmployeeSink& thelist)
{
    return FillEmployees(thelist, [this] { return m_database->PrepareStored(kAllEmployees); });
}

bool CJetDB::LoadEmployeesNamed(EmployeeSink& thelist, const std::string& thename)
{
    const std::array parameters{Parameter{"name", thename}};
    return FillEmployees(
        thelist, [&] { return m_database->PrepareStored(kAllEmployees, HasDisplayName(thename, m_database->Words()), parameters); });
}

// Fills the list in portions that stay in the processor's memory: all rows at once would cost as much again.
bool CJetDB::FillEmployees(EmployeeSink& thelist, const std::function<std::unique_ptr<Statement>()>& prepare)
{
    ForgetFailure();
    OpenWhenClosed();
    if (!m_databaseOpen) {
        return FailWithoutDatabase();
    }
    const auto fill = [&] {
        const auto statement = prepare();
        std::int32_t position = 0;
        std::int32_t read = kPortion;
        while (read == kPortion) {
            const auto rows = statement->ReadRows(kPortion);
            read = rows->RecordCount();
            for (RowReader reader(*rows, EmployeeTable()); !rows->EndOfFile(); rows->MoveNext()) {
                thelist.InsertLoaded(reader.ReadEmployee(), ++position); // deliberately not asked, unlike a company's list
            }
        }
    };
    if (!Succeeds(fill, FailingWith(jetdb::ListingFailed))) {
        return false;
    }
    CloseWhenOpen();
    return true;
}

bool CJetDB::LoadCompanyList(CompanySink& thelist)
{
    ForgetFailure();
    OpenWhenClosed();
    const auto rows = OpenCompanyQuery();
    // Deliberately judged by the number, which no member resets: one left by an earlier operation ends the load as well.
    if (m_errorNumber == jetdb::NegativeCount || m_errorNumber == jetdb::ListingFailed || m_errorNumber == jetdb::NoDatabase) {
        return m_refusal.failure.Number() != 0 ? false : Fail(m_errorNumber, "the companies are not listed after an earlier failure");
    }
    const auto fill = [&] {
        RowReader reader(*rows, CompanyTable());
        for (std::int32_t position = 1; position <= rows->RecordCount(); ++position) {
            if (!thelist.InsertLoaded(reader.ReadCompany(), position)) {
                m_errorNumber = jetdb::WorkingReferenceLost;
            }
            rows->MoveNext();
        }
    };
    if (!Succeeds(fill, FailingWith(jetdb::ListingFailed))) {
        return false;
    }
    CloseWhenOpen();
    return true;
}

} // namespace ptk
