#include "store/engine/StoredTable.h"

#include <algorithm>
#include <iterator>

namespace ptk {

namespace {

using enum ColumnKind;
using enum ColumnRule;
using Told = ColumnTold;

constexpr StoredColumn kCompany[] = {
    {"CompanyID", Integer, "company"},
    {"Name", Text, "name"},
    {"Address1", Text, "address"},
    {"Address2", Text, "second address line"},
    {"City", Text, "city"},
    {"State", Text, "state"},
    {"ZipCode", Text, "ZIP code"},
    {"Phone", Text, "phone"},
    {"Fax", Text, "fax"},
    {"FederalTaxID", Text, "federal tax ID"},
    {"URL", Text, "web address", Unread},
};

constexpr StoredColumn kEmployee[] = {
    {"EmployeeID", Integer, "employee", None, Told::Employee},
    {"SSNumber", Text, "SS number"},
    {"FirstName", Text, "first name"},
    {"LastName", Text, "last name"},
    {"Address", Text, "address"},
    {"Address2", Text, "second address line"},
    {"City", Text, "city"},
    {"State", Text, "state"},
    {"ZipCode", Text, "ZIP code"},
    {"Phone", Text, "phone"},
    {"EmployeeNumber", Integer, "employee number", AnyNumber},
    {"DateOfBirth", Date, "date of birth", None, Told::Day},
    {"HireDate", Date, "hire date", None, Told::Day},
    {"ReleaseDate", Date, "release date", None, Told::Day},
    {"PayRate", Single, "pay rate"},
    {"OvertimePayRate", Single, "overtime pay rate"},
    {"Active", Flag, "active", TrueWhenAbsent},
    {"CompanyID", Integer, "company"},
    {"AutoDeduct", Flag, "automatic deduction"},
    {"AutoDeductLunchLength", Integer, "lunch", Short},
    {"AutoDeductBreakLength", Integer, "break", Short},
    {"Password", Text},
};

constexpr StoredColumn kTimeRecord[] = {
    {"TimeRecordID", Integer, "number"},
    {"EmployeeID", Integer, "employee", None, Told::Employee},
    {"ShiftDate", Date, "shift date", Unread, Told::Day},
    {"StartTime", Date, "start", Moment},
    {"EndTime", Date, "end", Moment},
};

constexpr StoredColumn kSystem[] = {
    {"program", Text},
    {"version", Text},
    {"period_length", Integer, "period length"},
    {"auto_shift_start_time", Date, "start of the automatic shift"},
    {"auto_shift_end_time", Date, "end of the automatic shift"},
};

constexpr StoredColumn kCheckLimits[] = {
    {"long_shift_hours", Integer, "longest usual shift"},
    {"first_weekday", Integer, "first day of the work week", None, Told::Weekday},
    {"show_notices", Flag, "showing notices"},
};

constexpr StoredColumn kChange[] = {
    {"ChangeID", Long},
    {"ChangedAt", Text},
    {"ChangedBy", Text},
    {"Program", Text},
    {"Step", Long},
    {"TableName", Text},
    {"RowID", Long},
    {"Action", Text},
    {"Before", Json},
    {"After", Json},
    {"EmployeeBefore", Integer},
    {"EmployeeAfter", Integer},
    {"Reason", Text, nullptr, MayLack},
};

constexpr StoredColumn kPayday[] = {
    {"PaydayID", Integer, "number"},
    {"EmployeeID", Integer, "employee", None, Told::Employee},
    {"FromDay", Date, "first day", None, Told::Day},
    {"ToDay", Date, "last day", None, Told::Day},
    {"PaidAt", Date, "time of closing"},
    {"PaidBy", Text, "closed by"},
    {"Regular", Text, "regular hours"},
    {"Overtime", Text, "overtime hours"},
    {"Gross", Text, "gross pay"},
    {"Entry", Long, "newest change before"},
};

constexpr StoredColumn kProfile[] = {
    {"ProfileID", Integer},
    {"Name", Text, "name"},
    {"Definition", Text},
};

constexpr StoredTable kTables[] = {
    {"Company", kCompany, true},           {"Employee", kEmployee, true}, {"TimeRecord", kTimeRecord, true}, {"_System", kSystem, false},
    {"_CheckLimits", kCheckLimits, false}, {"_Payday", kPayday, true},    {"_Profile", kProfile, true},      {"_Change", kChange, true},
};

} // namespace

std::span<const StoredTable> StoredTables()
{
    return kTables;
}

const StoredTable& StoredTableOf(std::string_view name)
{
    return *std::find_if(std::begin(kTables), std::end(kTables), [&](const StoredTable& table) { return table.name == name; });
}

} // namespace ptk
