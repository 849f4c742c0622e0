#include "store/DatabaseChecker.h"

#include "platform/Failure.h"
#include "platform/Text.h"
#include "store/engine/Engine.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Statement.h"

#include <fmt/format.h>
#include <map>

namespace ptk {

namespace {

constexpr std::int32_t kApplicationId = 0x50544B31;
constexpr std::int32_t kFormatNumber = 1;

struct Column
{
    const char* name;
    const char* type;
};

struct Table
{
    const char* name;
    std::vector<Column> columns;
};

// Further tables and columns may be there.
const std::vector<Table>& ExpectedTables()
{
    static const std::vector<Table> tables = {
        {"Company",
         {{"CompanyID", "INTEGER"},
          {"Name", "TEXT"},
          {"Address1", "TEXT"},
          {"Address2", "TEXT"},
          {"City", "TEXT"},
          {"State", "TEXT"},
          {"ZipCode", "TEXT"},
          {"Phone", "TEXT"},
          {"Fax", "TEXT"},
          {"FederalTaxID", "TEXT"},
          {"URL", "TEXT"}}},
        {"Employee",
         {{"EmployeeID", "INTEGER"},
          {"SSNumber", "TEXT"},
          {"FirstName", "TEXT"},
          {"LastName", "TEXT"},
          {"Address", "TEXT"},
          {"Address2", "TEXT"},
          {"City", "TEXT"},
          {"State", "TEXT"},
          {"ZipCode", "TEXT"},
          {"Phone", "TEXT"},
          {"EmployeeNumber", "INTEGER"},
          {"DateOfBirth", "DATETIME"},
          {"HireDate", "DATETIME"},
          {"ReleaseDate", "DATETIME"},
          {"PayRate", "SINGLE"},
          {"OvertimePayRate", "SINGLE"},
          {"Active", "BOOLEAN"},
          {"CompanyID", "INTEGER"},
          {"AutoDeduct", "BOOLEAN"},
          {"AutoDeductLunchLength", "INTEGER"},
          {"AutoDeductBreakLength", "INTEGER"},
          {"Password", "TEXT"}}},
        {"TimeRecord",
         {{"TimeRecordID", "INTEGER"},
          {"EmployeeID", "INTEGER"},
          {"ShiftDate", "DATETIME"},
          {"StartTime", "DATETIME"},
          {"EndTime", "DATETIME"}}},
        {"_System",
         {{"program", "TEXT"},
          {"version", "TEXT"},
          {"period_length", "INTEGER"},
          {"auto_shift_start_time", "DATETIME"},
          {"auto_shift_end_time", "DATETIME"}}},
        {"_StoredQuery", {{"name", "TEXT"}, {"sql", "TEXT"}}},
    };
    return tables;
}

constexpr const char* kStoredQueries[] = {"AddNewCompany",   "AddNewEmployee", "GetAllCompanies",
                                          "GetAllEmployees", "UpdateCompany",  "UpdateEmployee"};

class Inspector
{
public:
    explicit Inspector(const std::string& path) : m_engine(path) {}

    DatabaseCheck Inspect()
    {
        CheckIntegrity();
        CheckNumber("application_id", kApplicationId);
        CheckNumber("user_version", kFormatNumber);
        for (const Table& table : ExpectedTables()) {
            CheckTable(table);
        }
        for (const char* query : kStoredQueries) {
            CheckQuery(query);
        }
        CountRows();
        return std::move(m_check);
    }

private:
    template <typename... Values>
    void Report(fmt::format_string<Values...> text, Values&&... values)
    {
        m_check.problems.push_back(fmt::format(text, std::forward<Values>(values)...));
    }

    void CheckIntegrity()
    {
        for (const auto rows = m_engine.Select("PRAGMA integrity_check"); !rows->EndOfFile(); rows->MoveNext()) {
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

    void CheckTable(const Table& table)
    {
        std::map<std::string, std::string> types;
        const auto rows = m_engine.Select(fmt::format("SELECT name, type FROM pragma_table_info('{}')", table.name));
        for (; !rows->EndOfFile(); rows->MoveNext()) {
            types[LowerCase(rows->TextAt(0))] = rows->TextAt(1);
        }
        if (types.empty()) {
            Report("There is no table {}.", table.name);
            return;
        }
        for (const Column& column : table.columns) {
            const auto found = types.find(LowerCase(column.name));
            if (found == types.end()) {
                Report("There is no column {}.{}.", table.name, column.name);
            } else if (LowerCase(found->second) != LowerCase(column.type)) {
                Report("The column {}.{} is {}, not {}.", table.name, column.name, found->second, column.type);
            }
        }
    }

    void CheckQuery(const char* query)
    {
        try {
            m_engine.PrepareStored(query);
        } catch (const Failure& failure) {
            Report("The stored query {} cannot be used: {}.", query, failure.Description());
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

    Engine m_engine;
    DatabaseCheck m_check;
};

} // namespace

DatabaseCheck CheckDatabase(const std::string& path)
{
    return Inspector(path).Inspect();
}

} // namespace ptk
