#include "console/Session.h"

#include "console/ErrorText.h"
#include "model/CEmployeeList.h"
#include "model/CTimeRecordFactory.h"
#include "model/remedy/Remedy.h"
#include "platform/files/ProgramFolder.h"
#include "reports/ReportErrors.h"
#include "shell/CDatabaseLocator.h"
#include "shell/CFileAdaptor.h"
#include "store/CJetDB.h"
#include "store/whole/DatabaseName.h"

namespace ptk {

std::shared_ptr<CDatabaseLocator> LocateDatabase(const std::string& programFolder)
{
    const auto configuration = std::make_shared<CFileAdaptor>(programFolder);
    const std::string path = configuration->FileName();
    configuration->ReadFile(path); // a missing file reads as an empty configuration, which names no database
    auto locator = std::make_shared<CDatabaseLocator>(programFolder);
    locator->ConfigFile(configuration);
    if (!locator->GetDatabasePath() || locator->DatabasePath().empty()) {
        throw Failure(0, "PTK", "the configuration file is missing or names no database: " + NativePath(path).string());
    }
    return locator;
}

std::string ConfiguredName(const std::string& programFolder)
{
    return NativeName(LocateDatabase(programFolder)->DatabasePath());
}

std::shared_ptr<CJetDB> ConfiguredDatabase(const std::string& programFolder)
{
    auto database = std::make_shared<CJetDB>(programFolder);
    database->DatabaseName(LocateDatabase(programFolder)->DatabasePath());
    return database;
}

Session::Session(const std::string& programFolder)
    : m_database(ConfiguredDatabase(programFolder)), m_hold(m_database), m_employees(std::make_shared<CEmployeeList>()),
      m_factory(std::make_shared<CTimeRecordFactory>())
{
    Open();
    m_factory->PTKDatabase(m_database);
}

void Session::LoadEmployees()
{
    RequireLoaded(m_employees->LoadList(m_database));
}

void Session::RequireEmployees(const std::vector<std::string>& names) const
{
    for (const std::string& name : names) {
        if (m_employees->GetEmployeeByName(name) == nullptr) {
            throw ProgramFailure(report::NoEmployee, name);
        }
    }
}

std::shared_ptr<CEmployee> Session::EmployeeNamed(const std::string& name)
{
    CEmployeeList namesakes;
    RequireLoaded(namesakes.LoadNamed(m_database, name));
    return namesakes.GetEmployeeByName(name);
}

void Session::RequireLoaded(bool loaded) const
{
    if (!loaded) {
        throw ProgramFailure(m_database->ErrorNumber(), "", m_database->LastFailure().Description());
    }
}

void Session::Open()
{
    if (!m_database->OpenDB()) {
        throw FileFailure(m_database->LastFailure(), NativePath(m_database->DatabaseName()).string());
    }
}

CSystemOptions Session::LoadOptions()
{
    Open();
    CSystemOptions options;
    options.PTKDatabase(m_database);
    RequireLoaded(options.Load());
    m_database->CloseDB();
    return options;
}

std::int16_t Session::PeriodLength()
{
    return LoadOptions().PeriodLength();
}

std::optional<std::int64_t> Session::AutoShiftEndOfDay()
{
    const CSystemOptions options = LoadOptions();
    return AutoShiftEnd(options.AutoShiftStartTime(), options.AutoShiftEndTime());
}

} // namespace ptk
