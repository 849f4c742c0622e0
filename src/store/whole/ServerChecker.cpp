#include "store/whole/ServerChecker.h"

#include "platform/text/Text.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredTable.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerStrangers.h"
#include "store/whole/RowChecker.h"

#include <fmt/format.h>

#include <map>
#include <set>

namespace ptk {

namespace {

// Of a table: its columns as the server has them, texts with their order. Types are given where an operator of a stranger, which fits them
// better, could be meant.
constexpr const char* kColumns = "SELECT attname::text, format_type(atttypid, atttypmod) || CASE WHEN atttypid = 'text'::regtype::oid AND "
                                 "attcollation <> 'pg_catalog.\"C\"'::regcollation::oid "
                                 "THEN ' in another order than \"C\"' ELSE '' END FROM pg_attribute "
                                 "WHERE attrelid = to_regclass('{}'::text)::oid AND attnum > 0 AND NOT attisdropped";

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

class ServerInspector
{
public:
    explicit ServerInspector(const std::string& address) : m_engine(address, Unhurried{}) {}

    DatabaseCheck Inspect()
    {
        if (const auto encoding = Ask("SELECT current_setting('server_encoding')"); encoding->TextAt(0) != "UTF8") {
            Report("The encoding is {}, not UTF8.", encoding->TextAt(0));
        }
        for (const StoredTable& table : StoredTables()) {
            CheckColumns(table);
        }
        CheckNames(kUnwatched, "The edit trail misses changes of the table {}.");
        CheckNames(kMissingIndexes, "There is no usable index {}: lists and time cards take long.");
        NameStrangers();
        CountRows();
        CheckLimits();
        if (!m_incomplete.contains("_Payday")) {
            m_rows.CheckClosings();
        }
        CheckRates();
        m_rows.TryActions();
        m_rows.CheckRows(m_incomplete);
        return std::move(m_check);
    }

private:
    template <typename... Values>
    void Report(fmt::format_string<Values...> text, Values&&... values)
    {
        m_check.problems.push_back(fmt::format(text, std::forward<Values>(values)...));
    }

    std::shared_ptr<RecordSet> Ask(const std::string& sql) { return m_engine.Prepare(sql)->ReadRows(); }

    std::map<std::string, std::string, std::less<>> ColumnsOf(const StoredTable& table)
    {
        std::map<std::string, std::string, std::less<>> types;
        for (const auto rows = Ask(fmt::format(kColumns, table.name)); !rows->EndOfFile(); rows->MoveNext()) {
            types.emplace(rows->TextAt(0), rows->TextAt(1));
        }
        return types;
    }

    void CheckColumns(const StoredTable& table)
    {
        const auto types = ColumnsOf(table);
        for (const StoredColumn& column : table.columns) {
            const auto found = types.find(LowerCase(column.name));
            if (found == types.end()) {
                Report("There is no column {}.{}.", table.name, column.name);
                m_incomplete.insert(table.name);
            } else if (found->second != TypeOf(column.kind)) {
                Report("The column {}.{} is {}, not {}.", table.name, column.name, found->second, TypeOf(column.kind));
            }
        }
    }

    void CheckNames(const char* query, const char* problem)
    {
        for (const auto rows = Ask(query); !rows->EndOfFile(); rows->MoveNext()) {
            m_check.problems.push_back(fmt::format(fmt::runtime(problem), rows->TextAt(0)));
        }
    }

    // 0 for a table that is not there or lacks columns, which has been reported by then.
    std::int32_t Count(const char* table)
    {
        return m_incomplete.contains(table) ? 0 : Ask(fmt::format("SELECT COUNT(*) FROM {}", table))->Int32At(0);
    }

    void RequireOneRow(const char* table)
    {
        if (const std::int32_t rows = Count(table); rows != 1) {
            Report("The table {} has {} rows, not 1.", table, rows);
        }
    }

    void CountRows()
    {
        m_check.companies = Count("Company");
        m_check.employees = Count("Employee");
        m_check.timeRecords = Count("TimeRecord");
        RequireOneRow("_System");
        RequireOneRow("_Structure");
        RequireOneRow("_CheckLimits");
    }

    void CheckLimits()
    {
        if (!m_incomplete.contains("_CheckLimits") && Ask(kUselessLimits)->Int32At(0) != 0) {
            Report("The table _CheckLimits holds a value of no use: the check takes its own instead.");
        }
    }

    void CheckRates()
    {
        if (!m_incomplete.contains("Employee")) {
            CheckNames(kUselessRates, "{} (no finite number).");
        }
    }

    void NameStrangers()
    {
        const ServerStrangers strangers = FindStrangers(m_engine);
        for (const std::string& function : strangers.functions) {
            Report("The function {} beside the tables is not the program's, and may be taken for one of the server's own.", function);
        }
        for (const std::string& each : strangers.operators) {
            Report("The operator {} beside the tables is not the program's, and may be taken for one of the server's own.", each);
        }
        for (const std::string& role : strangers.makers) {
            Report("{} may make objects beside the tables, which only their owner should.", role);
        }
    }

    PostgresEngine m_engine;
    DatabaseCheck m_check;
    RowChecker m_rows{m_engine, m_check.problems};
    std::set<std::string> m_incomplete; // tables that lack a column
};

} // namespace

DatabaseCheck CheckServerDatabase(const std::string& address)
{
    return ServerInspector(address).Inspect();
}

} // namespace ptk
