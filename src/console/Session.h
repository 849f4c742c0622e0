// The objects that the program has after its start, without windows: configuration, database, employees, time record factory.
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

// A locator that has found where the configuration says the database is. Raises a failure without a number when that names none.
[[nodiscard]] std::shared_ptr<CDatabaseLocator> LocateDatabase(const std::string& programFolder);

// The configured name of the database in the form that engines take. Raises what LocateDatabase raises.
[[nodiscard]] std::string ConfiguredName(const std::string& programFolder);

// The database that the configuration names, closed, for commands that only read: it has no author, so the edit trail would name nobody for
// what is stored through it. Raises what LocateDatabase raises.
[[nodiscard]] std::shared_ptr<CJetDB> ConfiguredDatabase(const std::string& programFolder);

// Holds the database until GiveUpDatabase, so that all that a command reads is of the same moment.
class Session
{
public:
    // Opens the database. Raises the engine's number when it could not be opened.
    explicit Session(const std::string& programFolder);

    [[nodiscard]] const std::shared_ptr<CJetDB>& Database() const { return m_database; }
    [[nodiscard]] const std::shared_ptr<CEmployeeList>& Employees() const { return m_employees; }
    [[nodiscard]] const std::shared_ptr<CTimeRecordFactory>& Factory() const { return m_factory; }

    // Loads all employees. Raises a failure where they could not be read, as the members below do.
    void LoadEmployees();

    // Raises 602, naming the first of these display names that no loaded employee has.
    void RequireEmployees(const std::vector<std::string>& names) const;

    // The first employee with this display name, or nullptr; LoadEmployees need not have been called.
    std::shared_ptr<CEmployee> EmployeeNamed(const std::string& name);

    // The length of a pay period in days, as the options say now.
    std::int16_t PeriodLength();

    // The second of the day at which the auto shift of the options ends; none where it is not set. See AutoShiftEnd.
    std::optional<std::int64_t> AutoShiftEndOfDay();

    // Lets go of the database. To be called before output is written, since its reader may be slow.
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
