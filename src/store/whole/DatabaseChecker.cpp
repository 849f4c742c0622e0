#include "store/whole/DatabaseChecker.h"

#include "platform/Failure.h"
#include "store/engine/RecordSet.h"
#include "store/engine/StoredTable.h"
#include "store/sqlite/FileHeader.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseInspector.h"
#include "store/whole/DatabaseName.h"
#include "store/whole/ServerChecker.h"
#include "store/whole/TrailChecker.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fmt/format.h>
#include <iterator>
#include <span>
#include <string_view>
#include <vector>

namespace ptk {

namespace {

constexpr StoredColumn kQueryColumns[] = {{"name", ColumnKind::Text}, {"sql", ColumnKind::Text}};
constexpr StoredColumn kSessionColumns[] = {{"user", ColumnKind::Text}, {"program", ColumnKind::Text}, {"step", ColumnKind::Integer}};
constexpr StoredColumn kReasonColumn[] = {{"reason", ColumnKind::Text}};
constexpr StoredColumn kToldReasonColumn[] = {{"Reason", ColumnKind::Text}};
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

constexpr const char* kFileColumns = "SELECT name, type FROM pragma_table_info('{}')";
constexpr InspectionWords kFileWords{FileTypeOf, kFileColumns, kFileUselessLimits, true};

// Those of one type after the other, and none that a file may lack.
std::vector<StoredColumn> RequiredOf(std::span<const StoredColumn> columns)
{
    std::vector<StoredColumn> required;
    std::ranges::copy_if(columns, std::back_inserter(required),
                         [](const StoredColumn& column) { return column.rule != ColumnRule::MayLack; });
    const auto firstOfType = [&](const StoredColumn& column) {
        return std::ranges::find_if(
            columns, [&](const StoredColumn& first) { return std::string_view(FileTypeOf(first.kind)) == FileTypeOf(column.kind); });
    };
    std::ranges::stable_sort(required, {}, firstOfType);
    return required;
}

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
            m_inspector.Report("The check was ended after {} seconds: what it had not come to by then was not looked at.", m_time.count());
        }
        return m_inspector.Take();
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
        m_inspector.CountRecords();
        m_inspector.RequireOneRow("_System");
        CheckLimitsTable();
        CheckTrail();
        CheckStructure();
        CheckProfiles();
        m_inspector.CheckRows();
    }

    void CheckIntegrity()
    {
        for (const auto rows = m_engine.CheckIntegrity(); !rows->EndOfFile(); rows->MoveNext()) {
            if (const std::string finding(rows->TextAt(0)); finding != "ok") {
                m_inspector.Report("The file is damaged: {}.", finding);
            }
        }
    }

    void CheckNumber(const char* name, std::int32_t expected)
    {
        const std::int32_t found = m_engine.Select(fmt::format("PRAGMA {}", name))->Int32At(0);
        if (found != expected) {
            m_inspector.Report("The {} is {}, not {}.", name, found, expected);
        }
    }

    void CheckTable(const char* table) { CheckColumns(table, StoredTableOf(table).columns); }
    void CheckColumns(const char* table, std::span<const StoredColumn> columns) { m_inspector.CheckColumns(table, RequiredOf(columns)); }

    bool HasTable(const char* name)
    {
        return !m_engine.Select(fmt::format("SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = '{}' COLLATE NOCASE", name))
                    ->EndOfFile();
    }

    void RequireOneRow(const char* table)
    {
        if (!m_inspector.LacksColumns(table)) {
            m_inspector.RequireOneRow(table);
        }
    }

    // A file has both tables or, from an earlier version, none.
    void CheckTrail()
    {
        const bool hasTrail = HasTable("_Session") || HasTable("_Change");
        if (hasTrail) {
            CheckColumns("_Session", kSessionColumns);
            CheckTable("_Change");
            RequireOneRow("_Session");
        }
        CheckRoutines(m_engine, hasTrail, m_inspector.Problems());
    }

    void CheckStructure()
    {
        if (!HasTable("_Structure")) {
            return;
        }
        CheckColumns("_Structure", kVersionColumn);
        CheckColumns("_Session", kReasonColumn);
        CheckColumns("_Change", kToldReasonColumn);
        CheckTable("_Payday");
        RequireOneRow("_Structure");
        m_inspector.CheckClosings();
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
        if (!m_inspector.LacksColumns("_CheckLimits") && m_inspector.RequireOneRow("_CheckLimits")) {
            m_inspector.CheckLimits();
        }
    }

    SqliteEngine m_engine;
    std::chrono::seconds m_time;
    CoarseTime m_end;
    DatabaseInspector m_inspector{m_engine, kFileWords};
};

} // namespace

DatabaseCheck CheckDatabase(const std::string& path)
{
    return IsFileName(path) ? FileInspector(path).Inspect() : CheckServerDatabase(path);
}

} // namespace ptk
