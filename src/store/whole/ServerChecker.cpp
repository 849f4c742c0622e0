#include "store/whole/ServerChecker.h"

#include "store/engine/StoredTable.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerStrangers.h"
#include "store/whole/DatabaseInspector.h"

namespace ptk {

namespace {

// Of a table: its columns as the server has them, texts with their order. Types are given where an operator of a stranger, which fits them
// better, could be meant.
constexpr const char* kColumns = "SELECT attname::text, format_type(atttypid, atttypmod) || CASE WHEN atttypid = 'text'::regtype::oid AND "
                                 "attcollation <> 'pg_catalog.\"C\"'::regcollation::oid "
                                 "THEN ' in another order than \"C\"' ELSE '' END FROM pg_attribute "
                                 "WHERE attrelid = to_regclass('{}'::text)::oid AND attnum > 0 AND NOT attisdropped";

constexpr const char* kOtherEncoding =
    "SELECT encoding FROM current_setting('server_encoding') AS told (encoding) WHERE encoding <> 'UTF8'";

// Inserts, deletions and updates are the bits 4, 8 and 16 of what a trigger answers to; one that is switched off does so to nothing.
constexpr const char* kUnwatched =
    "SELECT name FROM (VALUES ('Company'), ('Employee'), ('TimeRecord'), ('_System'), ('_CheckLimits'), ('_Payday')) AS tables (name) "
    "WHERE "
    "to_regclass(name) IS NOT NULL AND COALESCE((SELECT bit_or(tgtype::integer) FROM pg_trigger JOIN pg_proc ON pg_proc.oid = tgfoid "
    "WHERE tgrelid = to_regclass(name)::oid AND proname = 'ptk_tell' AND tgenabled IN ('O', 'A')), 0) & 28 <> 28";

constexpr const char* kMissingIndexes =
    "SELECT name FROM (VALUES ('EmployeeOrder'), ('TimeRecordPeriod'), ('TimeRecordUnusual'), ('_PaydayEmployee'), ('_PaydayLast')) AS "
    "indexes (name) "
    "WHERE NOT EXISTS (SELECT 1 FROM pg_index WHERE indexrelid = to_regclass(name)::oid AND indisvalid)";

// Read without complaint, but of no use to the pay, and to no file.
constexpr const char* kUselessRates =
    "SELECT 'Employee ' || EmployeeID::text || ': ' || name || ' is ' || rate FROM Employee CROSS JOIN LATERAL "
    "(VALUES ('PayRate', PayRate::text), ('OvertimePayRate', OvertimePayRate::text)) AS rates (name, rate) "
    "WHERE rate IN ('NaN', 'Infinity', '-Infinity') ORDER BY EmployeeID, name DESC";

constexpr const char* kUselessLimits =
    "SELECT COUNT(*) FROM _CheckLimits WHERE (long_shift_hours >= 0 AND first_weekday BETWEEN 0 AND 6 AND show_notices IS NOT NULL) IS NOT "
    "TRUE";

const char* TypeOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Integer:
        return "integer";
    case ColumnKind::Long:
        return "bigint";
    case ColumnKind::Text:
        return "text";
    case ColumnKind::Date:
        return "timestamp(0) without time zone";
    case ColumnKind::Single:
        return "real";
    case ColumnKind::Flag:
        return "boolean";
    default:
        return "json";
    }
}

constexpr InspectionWords kWords{TypeOf, kColumns, kUselessLimits, false};

void NameStrangers(PostgresEngine& engine, DatabaseInspector& inspector)
{
    const ServerStrangers strangers = FindStrangers(engine);
    for (const std::string& function : strangers.functions) {
        inspector.Report("The function {} beside the tables is not the program's, and may be taken for one of the server's own.", function);
    }
    for (const std::string& each : strangers.operators) {
        inspector.Report("The operator {} beside the tables is not the program's, and may be taken for one of the server's own.", each);
    }
    for (const std::string& role : strangers.makers) {
        inspector.Report("{} may make objects beside the tables, which only their owner should.", role);
    }
}

} // namespace

DatabaseCheck CheckServerDatabase(const std::string& address)
{
    PostgresEngine engine(address, Unhurried{});
    DatabaseInspector inspector(engine, kWords);
    inspector.ReportEach(kOtherEncoding, "The encoding is {}, not UTF8.");
    for (const StoredTable& table : StoredTables()) {
        inspector.CheckColumns(table.name, table.columns);
    }
    inspector.ReportEach(kUnwatched, "The edit trail misses changes of the table {}.");
    inspector.ReportEach(kMissingIndexes, "There is no usable index {}: lists and time cards take long.");
    NameStrangers(engine, inspector);
    inspector.CountRecords();
    for (const char* table : {"_System", "_Structure", "_CheckLimits"}) {
        inspector.RequireOneRow(table);
    }
    inspector.CheckLimits();
    inspector.CheckClosings();
    if (!inspector.LacksColumns("Employee")) {
        inspector.ReportEach(kUselessRates, "{} (no finite number).");
    }
    inspector.CheckRows();
    return inspector.Take();
}

} // namespace ptk
