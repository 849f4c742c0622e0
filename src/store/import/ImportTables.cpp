#include "store/import/ImportTables.h"

#include "store/engine/StoredTable.h"

#include <array>
#include <vector>

namespace ptk {

namespace {

ImportColumn ImportedAs(const StoredColumn& column)
{
    switch (column.kind) {
    case ColumnKind::Text:
        return {column.name, ImportKind::Text, {}};
    case ColumnKind::Single:
        return {column.name, ImportKind::Single, 0.0F};
    case ColumnKind::Flag:
        return {column.name, ImportKind::Flag, column.rule == ColumnRule::TrueWhenAbsent};
    case ColumnKind::Date:
        if (column.rule == ColumnRule::Moment) {
            return {column.name, ImportKind::Moment, DateTime(), DateTime()};
        }
        return {column.name, ImportKind::Date, DateTime()};
    default:
        if (column.rule == ColumnRule::Short) {
            return {column.name, ImportKind::Short, std::int16_t{0}};
        }
        return {column.name, ImportKind::Long, std::int32_t{0}};
    }
}

std::vector<ImportColumn> ColumnsFor(const char* table)
{
    std::vector<ImportColumn> columns;
    for (const StoredColumn& column : StoredTableOf(table).columns) {
        columns.push_back(ImportedAs(column));
    }
    columns.front() = {columns.front().name, ImportKind::Key, {}};
    return columns;
}

// The column of an option, which stays as shipped where the older database says nothing of it.
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
    static const auto employee = ColumnsFor("Employee");
    static const auto company = ColumnsFor("Company");
    static const auto timeRecord = ColumnsFor("TimeRecord");
    static const std::array system{Option("program", ImportKind::Text, "PTK - Administrator"), Option("version", ImportKind::Text, "1.0"),
                                   Option("period_length", ImportKind::Short, std::int16_t{14}),
                                   Option("auto_shift_start_time", ImportKind::TimeOfDay, Hour(8)),
                                   Option("auto_shift_end_time", ImportKind::TimeOfDay, Hour(17))};
    static const std::array<ImportTable, kImportTableCount> tables{
        {{"Employee", employee, true}, {"Company", company, true}, {"TimeRecord", timeRecord, true}, {"_System", system, false}}};
    return tables.at(static_cast<std::size_t>(id));
}

} // namespace ptk
