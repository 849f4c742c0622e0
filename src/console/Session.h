// The program's objects as they stand after its start, without windows: configuration, database, employees, time record factory.
#pragma once

#include "store/CJetDB.h"
#include "store/CSystemOptions.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

class CDatabaseLocator;
class CEmployee;
class CEmployeeList;
class CTimeRecordFactory;

// Where the configuration says the database is, with backslashes as configured. Raises a failure without a number when it names none.
[[nodiscard]] std::shared_ptr<CDatabaseLocator> LocateDatabase(const std::string& programFolder);

// The name that the configuration gives the database, as engines take it. Raises what LocateDatabase raises.
[[nodiscard]] std::string ConfiguredName(const std::string& programFolder);

// The database that the configuration names, closed, for commands that read: nobody is asked whose account this is, and nothing that is
// stored through it would carry a name.
[[nodiscard]] std::shared_ptr<CJetDB> ConfiguredDatabase(const std::string& programFolder);

// Holds the database until it is told to give it up: whatever a command reads is of one moment.
class Session
{
public:
    // Opens the database. Raises the engine's number when it could not be opened.
    explicit Session(const std::string& programFolder);

    [[nodiscard]] const std::shared_ptr<CJetDB>& Database() const { return m_database; }
    [[nodiscard]] const std::shared_ptr<CEmployeeList>& Employees() const { return m_employees; }
    [[nodiscard]] const std::shared_ptr<CTimeRecordFactory>& Factory() const { return m_factory; }

    // Each raises the failure of what could not be read.
    void LoadEmployees();

    // Raises 602 with the first of these display names that none of those loaded has.
    void RequireEmployees(const std::vector<std::string>& names) const;

    // Of all there are, the first of this display name, or nullptr.
    std::shared_ptr<CEmployee> EmployeeNamed(const std::string& name);

    // Days, as the options say at this moment.
    std::int16_t PeriodLength();

    // The second of the day at which the auto shift of the options ends; none where it is not set. See AutoShiftEnd.
    std::optional<std::int64_t> AutoShiftEndOfDay();

    // Before anything is written that somebody may be slow to read.
    void GiveUpDatabase() { m_hold.reset(); }

private:
    void Open();
    [[nodiscard]] CSystemOptions LoadOptions();
    void RequireLoaded(bool loaded) const;

    std::shared_ptr<CJetDB> m_database;
    std::optional<CJetDB::Hold> m_hold;
    std::shared_ptr<CEmployeeList> m_employees;
    std::shared_ptr<CTimeRecordFactory> m_factory;
};

} // namespace ptk
