// One record of each table as plain fields: they carry it between the database access class and the entities of the model above it. The
// defaults are those of a freshly made entity; a loader leaves a field unchanged where the column's rule says so.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>

namespace ptk {

// The states of an entity: what has to be stored of it.
namespace state {
inline constexpr std::int32_t NothingToDo = -1;
inline constexpr std::int32_t Unchanged = 0;
inline constexpr std::int32_t New = 1;
inline constexpr std::int32_t Changed = 2;
inline constexpr std::int32_t Deleted = 3;
} // namespace state

struct EmployeeRow
{
    std::int32_t EmployeeID = -1; // -1 = not stored yet
    std::string SSN;
    std::int32_t EmployeeNumber = 0;
    std::string FirstName;
    std::string LastName;
    std::string Address1;
    std::string Address2;
    std::string City;
    std::string State;
    std::string ZipCode;
    std::string Phone;
    std::string Password;
    float PayRate = 0;         // money per hour
    float OvertimePayRate = 0; // money per hour
    DateTime DateOfBirth;      // zero = unknown
    DateTime HireDate;         // zero = unknown
    DateTime ReleaseDate;      // zero = not released
    bool EmployeeActive = false;
    std::int32_t CompanyID = 0;
    bool AutoDeduct = false;
    std::int16_t AutoDeductLunchLength = 0; // minutes
    std::int16_t AutoDeductBreakLength = 0; // minutes
};

struct CompanyRow
{
    std::int32_t CompanyID = -1; // -1 = not stored yet
    std::string CompanyName;
    std::string Address1;
    std::string Address2;
    std::string City;
    std::string State;
    std::string ZipCode;
    std::string Phone;
    std::string Fax;
    std::string FederalTaxID;
    std::string URL; // written, never read back
};

struct TimeRecordRow
{
    std::int32_t TimeRecordID = -1; // -1 = not stored yet
    std::int32_t EmployeeID = 0;
    DateTime StartTime;
    DateTime EndTime; // zero = still clocked in
    std::int32_t ObjectState = state::New;
};

struct OptionsRow
{
    std::string ProgramName;
    std::string ProgramVersion;
    std::int16_t PeriodLength = 0; // days added to a period's first day
    DateTime AutoShiftStartTime;   // only the time of day matters
    DateTime AutoShiftEndTime;
};

// A list that a loader fills. InsertLoaded inserts an unchanged entity of the row at the 1-based position; false when it was not taken.
class EmployeeSink
{
public:
    virtual ~EmployeeSink() = default;
    virtual bool InsertLoaded(EmployeeRow row, std::int32_t position) = 0;
};

class CompanySink
{
public:
    virtual ~CompanySink() = default;
    virtual bool InsertLoaded(CompanyRow row, std::int32_t position) = 0;
};

} // namespace ptk
