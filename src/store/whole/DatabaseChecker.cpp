#include "store/whole/DatabaseChecker.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/RecordSet.h"
#include "store/postgres/ServerAddress.h"
#include "store/sqlite/FileHeader.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/RowChecker.h"
#include "store/whole/ServerChecker.h"
#include "store/whole/TrailChecker.h"

#include <chrono>
#include <filesystem>
#include <fmt/format.h>
#include <set>
#include <sstream>

namespace ptk {

namespace {

// The columns of one type in one table, separated by blanks. Further tables and columns may be there.
struct ExpectedColumns
{
    const char* table;
    const char* type;
    const char* names;
};

constexpr ExpectedColumns kExpectedColumns[] = {
    {"Company", "INTEGER", "CompanyID"},
    {"Company", "TEXT", "Name Address1 Address2 City State ZipCode Phone Fax FederalTaxID URL"},
    {"Employee", "INTEGER", "EmployeeID EmployeeNumber CompanyID AutoDeductLunchLength AutoDeductBreakLength"},
    {"Employee", "TEXT", "SSNumber FirstName LastName Address Address2 City State ZipCode Phone Password"},
    {"Employee", "DATETIME", "DateOfBirth HireDate ReleaseDate"},
    {"Employee", "SINGLE", "PayRate OvertimePayRate"},
    {"Employee", "BOOLEAN", "Active AutoDeduct"},
    {"TimeRecord", "INTEGER", "TimeRecordID EmployeeID"},
    {"TimeRecord", "DATETIME", "ShiftDate StartTime EndTime"},
    {"_System", "TEXT", "program version"},
    {"_System", "INTEGER", "period_length"},
    {"_System", "DATETIME", "auto_shift_start_time auto_shift_end_time"},
    {"_StoredQuery", "TEXT", "name sql"},
};

// Of a table that files of earlier versions lack.
constexpr ExpectedColumns kLimitColumns[] = {
    {"_CheckLimits", "INTEGER", "long_shift_hours first_weekday"},
    {"_CheckLimits", "BOOLEAN", "show_notices"},
};

// Of the edit trail, which files of earlier versions lack, too.
constexpr ExpectedColumns kTrailColumns[] = {
    {"_Session", "TEXT", "user program"},
    {"_Session", "INTEGER", "step"},
    {"_Change", "INTEGER", "ChangeID Step RowID EmployeeBefore EmployeeAfter"},
    {"_Change", "TEXT", "ChangedAt ChangedBy Program TableName Action Before After"},
};

// What came with the number of the structure, which files of earlier versions lack as well.
constexpr ExpectedColumns kStructureColumns[] = {
    {"_Structure", "INTEGER", "version"},
    {"_Session", "TEXT", "reason"},
    {"_Change", "TEXT", "Reason"},
    {"_Payday", "INTEGER", "PaydayID EmployeeID Entry"},
    {"_Payday", "DATETIME", "FromDay ToDay PaidAt"},
    {"_Payday", "TEXT", "PaidBy Regular Overtime Gross"},
};

// Of a table that a file has from its first profile on.
constexpr ExpectedColumns kProfileColumns[] = {
    {"_Profile", "INTEGER", "ProfileID"},
    {"_Profile", "TEXT", "Name Definition"},
};

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
        for (const ExpectedColumns& columns : kExpectedColumns) {
            CheckColumns(columns);
        }
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

    void CheckColumns(const ExpectedColumns& columns)
    {
        std::istringstream names(columns.names);
        for (std::string name; names >> name;) {
            const auto found = m_engine.Select(
                fmt::format("SELECT type FROM pragma_table_info('{}') WHERE name = '{}' COLLATE NOCASE", columns.table, name));
            if (found->EndOfFile()) {
                Report("There is no column {}.{}.", columns.table, name);
                m_incomplete.insert(columns.table);
            } else if (LowerCase(found->TextAt(0)) != LowerCase(columns.type)) {
                Report("The column {}.{} is {}, not {}.", columns.table, name, found->TextAt(0), columns.type);
            }
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
        for (const ExpectedColumns& columns : kTrailColumns) {
            CheckColumns(columns);
        }
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
        for (const ExpectedColumns& columns : kStructureColumns) {
            CheckColumns(columns);
        }
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
            for (const ExpectedColumns& columns : kProfileColumns) {
                CheckColumns(columns);
            }
        }
    }

    void CheckLimitsTable()
    {
        if (!HasTable("_CheckLimits")) {
            return;
        }
        for (const ExpectedColumns& columns : kLimitColumns) {
            CheckColumns(columns);
        }
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
    return IsServerAddress(path) ? CheckServerDatabase(path) : FileInspector(path).Inspect();
}

} // namespace ptk
