#include "store/BenchData.h"

#include "platform/text/Text.h"
#include "store/whole/DatabaseCreator.h"

#include <filesystem>
#include <fmt/format.h>
#include <sqlite3.h>
#include <stdexcept>

namespace bench {

const ptk::DateTime kLastDay({2026, 10, 31});

namespace {

std::string dataFolder = ".";

void Require(int code, sqlite3* database)
{
    if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

void Run(sqlite3* database, const std::string& sql)
{
    Require(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), database);
}

// Names differ in their last letters only where the number does; sorting them costs what real names cost.
std::string EmployeesSql(std::int32_t employees)
{
    return fmt::format(
        "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < {0}) INSERT INTO Employee(EmployeeID, SSNumber, "
        "FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, EmployeeNumber, DateOfBirth, HireDate, ReleaseDate, PayRate, "
        "OvertimePayRate, Active, CompanyID, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength, Password) SELECT {1} + i, "
        "printf('%03d-%02d-%04d', i % 1000, i % 100, i % 10000), 'First' || (i * 7919 % {0}), 'Last' || (i * 104729 % {0}), i || ' Main "
        "Street', '', "
        "'Springfield', 'IL', '62701', '555-0100', i + 1, '1980-01-01 00:00:00', '2010-05-03 00:00:00', '1899-12-30 00:00:00', 12.3, "
        "18.45, 1, "
        "1, i % 2, 30, 15, '' FROM n",
        employees, kFirstEmployee);
}

std::string RecordsSql(const Size& size)
{
    const std::int32_t days = size.records / size.employees;
    return fmt::format("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < {0}) INSERT INTO "
                       "TimeRecord(EmployeeID, StartTime, EndTime) "
                       "SELECT {1} + i % {2}, date('{3}', '+' || (i / {2}) || ' days') || ' 08:00:00', date('{3}', '+' || (i / {2}) || ' "
                       "days') || ' 16:30:00' FROM n",
                       days * size.employees, kFirstEmployee, size.employees, ptk::FormatDateTime(FirstDay(size), "yyyy-mm-dd"));
}

std::string TextOf(sqlite3* database, const char* sql)
{
    std::string text;
    const auto append = [](void* to, int /*count*/, char** values, char** /*names*/) {
        *static_cast<std::string*>(to) += values[0];
        return 0;
    };
    Require(sqlite3_exec(database, sql, append, &text, nullptr), database);
    return text;
}

void DropTriggers(sqlite3* database)
{
    Run(database,
        TextOf(database, "SELECT 'DROP TRIGGER ' || name || ';' FROM sqlite_master WHERE type = 'trigger' AND tbl_name <> '_Edit'"));
}

// Only a file that is to have a history has one.
void Fill(const std::string& path, const Size& size)
{
    sqlite3* database = nullptr;
    Require(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr), database);
    Run(database, "PRAGMA synchronous=OFF; PRAGMA cache_size=-400000; BEGIN");
    const std::string triggers = TextOf(database, "SELECT sql || ';' FROM sqlite_master WHERE type = 'trigger' AND tbl_name <> '_Edit'");
    DropTriggers(database);
    Run(database, EmployeesSql(size.employees));
    Run(database, size.history ? triggers : "");
    Run(database, RecordsSql(size));
    Run(database, size.history ? "" : triggers);
    Run(database, "COMMIT");
    Require(sqlite3_close(database), nullptr);
}

} // namespace

void DataFolder(std::string folder)
{
    dataFolder = std::move(folder);
}

std::string DataFolder()
{
    return dataFolder;
}

ptk::DateTime FirstDay(const Size& size)
{
    return kLastDay.AddDays(1 - size.records / size.employees);
}

std::string DataFile(const Size& size)
{
    std::string path = dataFolder + "/" + size.name + ".trail.mdb"; // files without a trail had the names without it
    if (std::filesystem::exists(path)) {
        return path;
    }
    const std::string unfinished = path + ".part";
    std::filesystem::remove(unfinished);
    ptk::CreateDatabase(unfinished);
    Fill(unfinished, size);
    std::filesystem::rename(unfinished, path);
    return path;
}

std::string UntrailedCopy(const Size& size)
{
    std::string copy = ScratchCopy(size);
    sqlite3* database = nullptr;
    Require(sqlite3_open_v2(copy.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr), database);
    DropTriggers(database);
    Require(sqlite3_close(database), nullptr);
    return copy;
}

std::string ScratchCopy(const Size& size)
{
    std::string copy = dataFolder + "/scratch.mdb";
    std::filesystem::copy_file(DataFile(size), copy, std::filesystem::copy_options::overwrite_existing);
    return copy;
}

} // namespace bench
