// One record of each table as plain fields: they carry it between the database access class and the entities of the model above it. The
// defaults are those of a freshly made entity; a loader leaves a field unchanged where the column's rule says so.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>
#include <tuple>

namespace ptk {

// The states of an entity: what has to be stored of it.
namespace state {
inline constexpr std::int32_t NothingToDo = -1;
inline constexpr std::int32_t Unchanged = 0;
inline constexpr std::int32_t New = 1;
inline constexpr std::int32_t Changed = 2;
inline constexpr std::int32_t Deleted = 3;
} // namespace state

// The field that holds a column, and the parameters that carry it into the stored queries which add a row and change one; nullptr where the
// query has none. Their names are the database's contract and differ on purpose from one another and from the columns.
template <typename Row, typename T>
struct RowField
{
    T Row::*field;
    const char* added = nullptr;
    const char* changed = nullptr;
};

template <typename Row, typename T>
RowField(T Row::*) -> RowField<Row, T>;
template <typename Row, typename T>
RowField(T Row::*, const char*, const char*) -> RowField<Row, T>;

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

// The fields in the order of the columns that are read, the key first. The lists of the other rows have this order, too.
inline constexpr std::tuple kEmployeeFields{
    RowField{&EmployeeRow::EmployeeID, nullptr, "employee_id"},
    RowField{&EmployeeRow::SSN, "paramSSN", "SSN"},
    RowField{&EmployeeRow::FirstName, "paramFirst", "first_name"},
    RowField{&EmployeeRow::LastName, "paramLast", "last_name"},
    RowField{&EmployeeRow::Address1, "paramAddress", "Address1"},
    RowField{&EmployeeRow::Address2, "paramAddress2", "Address2"},
    RowField{&EmployeeRow::City, "paramCity", "City"},
    RowField{&EmployeeRow::State, "paramState", "State"},
    RowField{&EmployeeRow::ZipCode, "paramZipCode", "zip_code"},
    RowField{&EmployeeRow::Phone, "paramPhone", "Phone"},
    RowField{&EmployeeRow::EmployeeNumber, "paramEmpNumber", "employee_number"},
    RowField{&EmployeeRow::DateOfBirth, "paramDOB", "dob"},
    RowField{&EmployeeRow::HireDate, "paramHireDate", "hire_date"},
    RowField{&EmployeeRow::ReleaseDate, "paramRelDate", "release_date"},
    RowField{&EmployeeRow::PayRate, "paramPayRate", "pay_rate"},
    RowField{&EmployeeRow::OvertimePayRate, "paramOvertimePay", "overtime_pay_rate"},
    RowField{&EmployeeRow::EmployeeActive, "paramActive", "active_employee"},
    RowField{&EmployeeRow::CompanyID, "paramCompID", "company_id"},
    RowField{&EmployeeRow::AutoDeduct, "paramAutoDeduct", "auto_deduct"},
    RowField{&EmployeeRow::AutoDeductLunchLength, "paramLunchLength", "auto_deduct_lunch_length"},
    RowField{&EmployeeRow::AutoDeductBreakLength, "paramBreakLength", "auto_deduct_break_length"},
    RowField{&EmployeeRow::Password, "paramPassword", "Password"},
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

inline constexpr std::tuple kCompanyFields{
    RowField{&CompanyRow::CompanyID, nullptr, "paramID"},
    RowField{&CompanyRow::CompanyName, "paramName", "paramName"},
    RowField{&CompanyRow::Address1, "paramAddr1", "paramAddr1"},
    RowField{&CompanyRow::Address2, "paramAddr2", "paramAddr2"},
    RowField{&CompanyRow::City, "paramCity", "paramCity"},
    RowField{&CompanyRow::State, "paramState", "paramState"},
    RowField{&CompanyRow::ZipCode, "paramZipCode", "paramZipCode"},
    RowField{&CompanyRow::Phone, "paramPhone", "paramPhone"},
    RowField{&CompanyRow::Fax, "paramFax", "paramFax"},
    RowField{&CompanyRow::FederalTaxID, "paramFederalTaxID", "paramFederalTaxID"},
};

struct TimeRecordRow
{
    std::int32_t TimeRecordID = -1; // -1 = not stored yet
    std::int32_t EmployeeID = 0;
    DateTime StartTime;
    DateTime EndTime; // zero = still clocked in
    std::int32_t ObjectState = state::New;
};

inline constexpr std::tuple kTimeRecordFields{
    RowField{&TimeRecordRow::TimeRecordID},
    RowField{&TimeRecordRow::EmployeeID},
    RowField{&TimeRecordRow::StartTime},
    RowField{&TimeRecordRow::EndTime},
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
