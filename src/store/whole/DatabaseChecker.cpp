#include "store/whole/DatabaseChecker.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredTable.h"
#include "store/sqlite/FileHeader.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseName.h"
#include "store/whole/RowChecker.h"
#include "store/whole/ServerChecker.h"
#include "store/whole/TrailChecker.h"

#include <chrono>
#include <filesystem>
#include <fmt/format.h>
#include <set>
#include <span>
#include <string_view>

namespace ptk {

namespace {

constexpr StoredColumn kQueryColumns[] = {{"name", ColumnKind::Text}, {"sql", ColumnKind::Text}};
constexpr StoredColumn kSessionColumns[] = {{"user", ColumnKind::Text}, {"program", ColumnKind::Text}, {"step", ColumnKind::Integer}};
constexpr StoredColumn kReasonColumn[] = {{"reason", ColumnKind::Text}};
constexpr StoredColumn kVersionColumn[] = {{"version", ColumnKind::Integer}};

const char* FileTypeOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Integer:
    case ColumnKind::Long:
        return "INTEGER";
    case ColumnKind::Date:
        return "DATETIME";
    case ColumnKind::Single:
        return "SINGLE";
    case ColumnKind::Flag:
        return "BOOLEAN";
    default:
        return "TEXT";
    }
}

// Whatever a foreign view or a huge file takes: no file is slower to check than by this much.
constexpr std::chrono::seconds kTime(30);
constexpr std::int64_t kBytesOfSecond = 4 << 20;

std::chrono::seconds TimeFor(const std::string& path)
{
    std::error_code ignored; // opening it tells
    const auto size = std::filesystem::file_size(path, ignored);
    return kTime + std::chrono::seconds(ignored ? 0 : static_cast<std::int64_t>(size) / kBytesOfSecond);
}

constexpr const char* kFileUselessLimits =
    "SELECT COUNT(*) FROM _CheckLimits WHERE NOT IFNULL(typeof(long_shift_hours) = 'integer' AND long_shift_hours BETWEEN 0 AND 2147483647 "
    "AND "
    "typeof(first_weekday) = 'integer' AND first_weekday BETWEEN 0 AND 6 AND typeof(show_notices) = 'integer', 0)";

class FileInspector
{
public:
    explicit FileInspector(const std::string& path) : m_engine(path), m_time(TimeFor(path)), m_end(CoarseNow() + m_time)
    {
        m_engine.EndBy(m_end);
    }

    DatabaseCheck Inspect()
    {
        try {
            InspectAll();
        } catch (const Failure&) {
            if (CoarseNow() < m_end) {
                throw;
            }
        }
        if (CoarseNow() >= m_end) {
            Report("The check was ended after {} seconds: what it had not come to by then was not looked at.", m_time.count());
        }
        return std::move(m_check);
    }

private:
    void InspectAll()
    {
        CheckIntegrity();
        CheckNumber("application_id", kApplicationId);
        CheckNumber("user_version", kFormatNumber);
        for (const char* table : {"Company", "Employee", "TimeRecord", "_System"}) {
            CheckTable(table);
        }
        CheckColumns("_StoredQuery", kQueryColumns);
        CountRows();
        CheckLimitsTable();
        CheckTrail();
        CheckStructure();
        CheckProfiles();
        m_rows.TryActions();
        m_rows.CheckRows(m_incomplete);
    }

    template <typename... Values>
    void Report(fmt::format_string<Values...> text, Values&&... values)
    {
        m_check.problems.push_back(fmt::format(text, std::forward<Values>(values)...));
    }

    void CheckIntegrity()
    {
        for (const auto rows = m_engine.CheckIntegrity(); !rows->EndOfFile(); rows->MoveNext()) {
            if (const std::string finding(rows->TextAt(0)); finding != "ok") {
                Report("The file is damaged: {}.", finding);
            }
        }
    }

    void CheckNumber(const char* name, std::int32_t expected)
    {
        const std::int32_t found = m_engine.Select(fmt::format("PRAGMA {}", name))->Int32At(0);
        if (found != expected) {
            Report("The {} is {}, not {}.", name, found, expected);
        }
    }

    void CheckTable(const char* table) { CheckColumns(table, StoredTableOf(table).columns); }

    // Those of one type after the other. Further tables and columns may be there, and what a file may lack is not asked for here.
    void CheckColumns(const char* table, std::span<const StoredColumn> columns)
    {
        std::set<std::string_view> types;
        for (const StoredColumn& first : columns) {
            const std::string_view type = FileTypeOf(first.kind);
            if (!types.insert(type).second) {
                continue;
            }
            for (const StoredColumn& column : columns) {
                if (type == FileTypeOf(column.kind) && column.rule != ColumnRule::MayLack) {
                    CheckColumn(table, column.name, type);
                }
            }
        }
    }

    void CheckColumn(const char* table, const char* name, std::string_view type)
    {
        const auto found =
            m_engine.Select(fmt::format("SELECT type FROM pragma_table_info('{}') WHERE name = '{}' COLLATE NOCASE", table, name));
        if (found->EndOfFile()) {
            Report("There is no column {}.{}.", table, name);
            m_incomplete.insert(table);
        } else if (LowerCase(found->TextAt(0)) != LowerCase(type)) {
            Report("The column {}.{} is {}, not {}.", table, name, found->TextAt(0), type);
        }
    }

    bool HasTable(const char* name)
    {
        return !m_engine.Select(fmt::format("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = '{}' COLLATE NOCASE", name))
                    ->EndOfFile();
    }

    // A file has both tables or, from an earlier version, none.
    void CheckTrail()
    {
        const bool hasTrail = HasTable("_Session") || HasTable("_Change");
        if (!hasTrail) {
            return CheckRoutines(m_engine, hasTrail, m_check.problems);
        }
        CheckColumns("_Session", kSessionColumns);
        CheckTable("_Change");
        if (!m_incomplete.contains("_Session") && Count("_Session") != 1) {
            Report("The table _Session has {} rows, not 1.", Count("_Session"));
        }
        CheckRoutines(m_engine, hasTrail, m_check.problems);
    }

    void CheckStructure()
    {
        if (!HasTable("_Structure")) {
            return;
        }
        CheckColumns("_Structure", kVersionColumn);
        CheckColumns("_Session", kReasonColumn);
        CheckColumn("_Change", "Reason", "TEXT");
        CheckTable("_Payday");
        if (!m_incomplete.contains("_Structure") && Count("_Structure") != 1) {
            Report("The table _Structure has {} rows, not 1.", Count("_Structure"));
        }
        if (!m_incomplete.contains("_Payday")) {
            m_rows.CheckClosings();
        }
    }

    void CheckProfiles()
    {
        if (HasTable("_Profile")) {
            CheckTable("_Profile");
        }
    }

    void CheckLimitsTable()
    {
        if (!HasTable("_CheckLimits")) {
            return;
        }
        CheckTable("_CheckLimits");
        if (m_incomplete.contains("_CheckLimits")) {
            return;
        }
        if (const std::int32_t limits = Count("_CheckLimits"); limits != 1) {
            Report("The table _CheckLimits has {} rows, not 1.", limits);
        } else if (m_engine.Select(kFileUselessLimits)->Int32At(0) != 0) {
            Report("The table _CheckLimits holds a value of no use: the check takes its own instead.");
        }
    }

    // 0 for a table that is not there, which has been reported by then.
    std::int32_t Count(const char* table)
    {
        try {
            return m_engine.Select(fmt::format("SELECT COUNT(*) FROM {}", table))->Int32At(0);
        } catch (const Failure&) {
            return 0;
        }
    }

    void CountRows()
    {
        m_check.companies = Count("Company");
        m_check.employees = Count("Employee");
        m_check.timeRecords = Count("TimeRecord");
        if (const std::int32_t options = Count("_System"); options != 1) {
            Report("The table _System has {} rows, not 1.", options);
        }
    }

    SqliteEngine m_engine;
    std::chrono::seconds m_time;
    CoarseTime m_end;
    DatabaseCheck m_check;
    RowChecker m_rows{m_engine, m_check.problems};
    std::set<std::string> m_incomplete; // tables that lack a column
};

} // namespace

DatabaseCheck CheckDatabase(const std::string& path)
{
    return IsFileName(path) ? FileInspector(path).Inspect() : CheckServerDatabase(path);
}

} // namespace ptk
