#include "store/engine/StoredTable.h"

#include <algorithm>
#include <iterator>

namespace ptk {

namespace {

using enum ColumnKind;
using enum ColumnRule;

constexpr StoredColumn kCompany[] = {
    {"CompanyID", Integer}, {"Name", Text},  {"Address1", Text}, {"Address2", Text},     {"City", Text},        {"State", Text},
    {"ZipCode", Text},      {"Phone", Text}, {"Fax", Text},      {"FederalTaxID", Text}, {"URL", Text, Unread},
};

constexpr StoredColumn kEmployee[] = {
    {"EmployeeID", Integer},
    {"SSNumber", Text},
    {"FirstName", Text},
    {"LastName", Text},
    {"Address", Text},
    {"Address2", Text},
    {"City", Text},
    {"State", Text},
    {"ZipCode", Text},
    {"Phone", Text},
    {"EmployeeNumber", Integer, AnyNumber},
    {"DateOfBirth", Date},
    {"HireDate", Date},
    {"ReleaseDate", Date},
    {"PayRate", Single},
    {"OvertimePayRate", Single},
    {"Active", Flag, TrueWhenAbsent},
    {"CompanyID", Integer},
    {"AutoDeduct", Flag},
    {"AutoDeductLunchLength", Integer, Short},
    {"AutoDeductBreakLength", Integer, Short},
    {"Password", Text},
};

constexpr StoredColumn kTimeRecord[] = {
    {"TimeRecordID", Integer}, {"EmployeeID", Integer}, {"ShiftDate", Date, Unread}, {"StartTime", Date, Moment}, {"EndTime", Date, Moment},
};

constexpr StoredColumn kSystem[] = {
    {"program", Text}, {"version", Text}, {"period_length", Integer}, {"auto_shift_start_time", Date}, {"auto_shift_end_time", Date},
};

constexpr StoredColumn kCheckLimits[] = {
    {"long_shift_hours", Integer},
    {"first_weekday", Integer},
    {"show_notices", Flag},
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
    {"Reason", Text, MayLack},
};

constexpr StoredColumn kPayday[] = {
    {"PaydayID", Integer}, {"EmployeeID", Integer}, {"FromDay", Date},  {"ToDay", Date}, {"PaidAt", Date},
    {"PaidBy", Text},      {"Regular", Text},       {"Overtime", Text}, {"Gross", Text}, {"Entry", Long},
};

constexpr StoredColumn kProfile[] = {
    {"ProfileID", Integer},
    {"Name", Text},
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
