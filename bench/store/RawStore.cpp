#include "store/RawStore.h"

#include "platform/text/Text.h"

#include <cstring>
#include <fmt/format.h>
#include <sqlite3.h>
#include <stdexcept>

namespace bench {

namespace {

class Hold
{
public:
    Hold(const std::string& path, const char* pragmas)
    {
        Require(sqlite3_open_v2(path.c_str(), &m_database, SQLITE_OPEN_READWRITE, nullptr));
        Run(pragmas);
        Run("BEGIN EXCLUSIVE");
    }

    ~Hold() { sqlite3_close(m_database); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

    sqlite3* Get() const { return m_database; }
    void Run(const char* sql) const { Require(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr)); }

    void Require(int code) const
    {
        if (code != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(m_database));
        }
    }

private:
    sqlite3* m_database = nullptr;
};

int TwoDigits(const unsigned char* text)
{
    return (text[0] - '0') * 10 + text[1] - '0';
}

// Minutes within the day; the bench's shifts do not cross midnight.
int MinuteOfDay(const unsigned char* stored)
{
    return TwoDigits(stored + 11) * 60 + TwoDigits(stored + 14);
}

// Hours of the rows that a prepared fetch answers, day by day.
double SumHours(sqlite3_stmt* statement)
{
    double hours = 0;
    double day = 0;
    char date[11] = "";
    while (sqlite3_step(statement) == SQLITE_ROW) {
        const unsigned char* start = sqlite3_column_text(statement, 2);
        const unsigned char* end = sqlite3_column_text(statement, 3);
        if (std::memcmp(date, start, 10) != 0) {
            hours += day;
            day = 0;
            std::memcpy(date, start, 10);
        }
        day += (MinuteOfDay(end) - MinuteOfDay(start)) / 60.0;
    }
    return hours + day;
}

} // namespace

std::string StoredText(ptk::DateTime value)
{
    return ptk::FormatDateTime(value, "yyyy-mm-dd hh:nn:ss");
}

double RawCard(const std::string& path, std::int32_t employee, const std::string& from, const std::string& to)
{
    const Hold hold(path, "");
    const std::string sql =
        fmt::format("SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = {} AND StartTime >= '{}' AND "
                    "EndTime <= '{}' ORDER BY StartTime, EndTime",
                    employee, from, to);
    sqlite3_stmt* statement = nullptr;
    hold.Require(sqlite3_prepare_v2(hold.Get(), sql.c_str(), -1, &statement, nullptr));
    const double hours = SumHours(statement);
    sqlite3_finalize(statement);
    return hours;
}

double RawCards(const std::string& path, std::int32_t first, std::int32_t count, const std::string& from, const std::string& to)
{
    const Hold hold(path, "");
    sqlite3_stmt* statement = nullptr;
    hold.Require(sqlite3_prepare_v2(hold.Get(),
                                    "SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = ?1 AND "
                                    "StartTime >= ?2 AND EndTime <= ?3 ORDER BY StartTime, EndTime",
                                    -1, &statement, nullptr));
    hold.Require(sqlite3_bind_text(statement, 2, from.c_str(), -1, SQLITE_STATIC));
    hold.Require(sqlite3_bind_text(statement, 3, to.c_str(), -1, SQLITE_STATIC));
    double hours = 0;
    for (std::int32_t employee = first; employee < first + count; ++employee) {
        hold.Require(sqlite3_bind_int(statement, 1, employee));
        hours += SumHours(statement);
        hold.Require(sqlite3_reset(statement));
    }
    sqlite3_finalize(statement);
    return hours;
}

std::vector<RawEmployee> RawEmployees(const std::string& path)
{
    const Hold hold(path, "");
    sqlite3_stmt* statement = nullptr;
    hold.Require(sqlite3_prepare_v2(
        hold.Get(),
        "SELECT EmployeeID, SSNumber, FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, EmployeeNumber, "
        "DateOfBirth, HireDate, ReleaseDate, PayRate, OvertimePayRate, Active, CompanyID, AutoDeduct, AutoDeductLunchLength, "
        "AutoDeductBreakLength, Password FROM Employee ORDER BY LastName COLLATE NOCASE, FirstName COLLATE NOCASE, EmployeeID",
        -1, &statement, nullptr));
    std::vector<RawEmployee> employees;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        RawEmployee& employee = employees.emplace_back();
        employee.id = sqlite3_column_int(statement, 0);
        employee.payRate = sqlite3_column_double(statement, 14);
        employee.overtimePayRate = sqlite3_column_double(statement, 15);
        employee.texts.reserve(20);
        for (const int column : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 21}) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            employee.texts.emplace_back(text == nullptr ? "" : text);
        }
    }
    sqlite3_finalize(statement);
    return employees;
}

void RawSave(const std::string& path, std::int32_t record, const std::string& end)
{
    const Hold hold(path, "PRAGMA synchronous=EXTRA");
    hold.Run(fmt::format("UPDATE TimeRecord SET EndTime = '{}' WHERE TimeRecordID = {}", end, record).c_str());
    hold.Run("COMMIT");
}

void RawBackup(const std::string& path, const std::string& copy)
{
    const Hold from(path, "");
    from.Run("COMMIT");
    sqlite3* to = nullptr;
    from.Require(sqlite3_open_v2(copy.c_str(), &to, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr));
    sqlite3_backup* backup = sqlite3_backup_init(to, "main", from.Get(), "main");
    from.Require(sqlite3_backup_step(backup, -1) == SQLITE_DONE ? SQLITE_OK : SQLITE_ERROR);
    from.Require(sqlite3_backup_finish(backup)); // the engine flushes the copy when it commits it
    from.Require(sqlite3_exec(to, "PRAGMA integrity_check(1)", nullptr, nullptr, nullptr));
    sqlite3_close(to);
}

std::size_t RawHistory(const std::string& path, std::int32_t employee)
{
    const Hold hold(path, "");
    sqlite3_stmt* statement = nullptr;
    const std::string sql = fmt::format("SELECT * FROM _Change WHERE EmployeeAfter = {} ORDER BY ChangeID DESC", employee);
    hold.Require(sqlite3_prepare_v2(hold.Get(), sql.c_str(), -1, &statement, nullptr));
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            bytes +=
                sqlite3_column_text(statement, column) == nullptr ? 0 : static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        }
    }
    sqlite3_finalize(statement);
    return bytes;
}

} // namespace bench
