#include "store/import/ImportTables.h"

#include <array>

namespace ptk {

namespace {

ImportColumn Key(const char* name)
{
    return {name, ImportKind::Key, {}};
}

ImportColumn Text(const char* name)
{
    return {name, ImportKind::Text, {}};
}

ImportColumn Long(const char* name)
{
    return {name, ImportKind::Long, std::int32_t{0}};
}

ImportColumn Minutes(const char* name)
{
    return {name, ImportKind::Short, std::int16_t{0}};
}

ImportColumn Rate(const char* name)
{
    return {name, ImportKind::Single, 0.0F};
}

ImportColumn Date(const char* name)
{
    return {name, ImportKind::Date, DateTime()};
}

ImportColumn Flag(const char* name, bool absent)
{
    return {name, ImportKind::Flag, absent};
}

ImportColumn Moment(const char* name)
{
    return {name, ImportKind::Moment, DateTime(), DateTime()};
}

// An option stays as shipped where the older database says nothing of it.
ImportColumn Option(const char* name, ImportKind kind, const Value& shipped)
{
    return {name, kind, shipped, shipped};
}

DateTime Hour(int hour)
{
    return DateTime(CalendarDate{}, TimeOfDay{hour, 0, 0});
}

} // namespace

const ImportTable& ImportTableOf(ImportTableId id)
{
    static const std::array employee{Key("EmployeeID"),
                                     Text("SSNumber"),
                                     Text("FirstName"),
                                     Text("LastName"),
                                     Text("Address"),
                                     Text("Address2"),
                                     Text("City"),
                                     Text("State"),
                                     Text("ZipCode"),
                                     Text("Phone"),
                                     Long("EmployeeNumber"),
                                     Date("DateOfBirth"),
                                     Date("HireDate"),
                                     Date("ReleaseDate"),
                                     Rate("PayRate"),
                                     Rate("OvertimePayRate"),
                                     Flag("Active", true),
                                     Long("CompanyID"),
                                     Flag("AutoDeduct", false),
                                     Minutes("AutoDeductLunchLength"),
                                     Minutes("AutoDeductBreakLength"),
                                     Text("Password")};
    static const std::array company{Key("CompanyID"), Text("Name"),  Text("Address1"), Text("Address2"),     Text("City"), Text("State"),
                                    Text("ZipCode"),  Text("Phone"), Text("Fax"),      Text("FederalTaxID"), Text("URL")};
    static const std::array timeRecord{Key("TimeRecordID"), Long("EmployeeID"), Date("ShiftDate"), Moment("StartTime"), Moment("EndTime")};
    static const std::array system{Option("program", ImportKind::Text, "PTK - Administrator"), Option("version", ImportKind::Text, "1.0"),
                                   Option("period_length", ImportKind::Short, std::int16_t{14}),
                                   Option("auto_shift_start_time", ImportKind::TimeOfDay, Hour(8)),
                                   Option("auto_shift_end_time", ImportKind::TimeOfDay, Hour(17))};
    static const std::array<ImportTable, kImportTableCount> tables{
        {{"Employee", employee, true}, {"Company", company, true}, {"TimeRecord", timeRecord, true}, {"_System", system, false}}};
    return tables.at(static_cast<std::size_t>(id));
}

} // namespace ptk
