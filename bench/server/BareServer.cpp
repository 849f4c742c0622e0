#include "server/BareServer.h"

#include "store/BenchData.h"

#include <array>
#include <fmt/format.h>
#include <stdexcept>

namespace bench {

namespace {

constexpr const char* kSign =
    "SELECT set_config('ptk.user', $1, true), set_config('ptk.program', $2, true), set_config('ptk.step', step::text, true), "
    "set_config('ptk.next', step::text, true), set_config('TimeZone', $3, true), step, pg_current_xact_id()::text "
    "FROM (SELECT nextval('_change_changeid_seq') AS step) AS numbered";

constexpr const char* kEmployees =
    "SELECT EmployeeID, SSNumber, FirstName, LastName, Address, Address2, City, State, ZipCode, Phone, EmployeeNumber, DateOfBirth, "
    "HireDate, ReleaseDate, PayRate, OvertimePayRate, Active, CompanyID, AutoDeduct, AutoDeductLunchLength, AutoDeductBreakLength, "
    "Password FROM Employee ORDER BY lower(COALESCE(LastName, '')), lower(COALESCE(FirstName, '')), EmployeeID";

int TwoDigits(const char* text)
{
    return (text[0] - '0') * 10 + text[1] - '0';
}

// Minutes within the day; the bench's shifts do not cross midnight.
int MinuteOfDay(const char* stored)
{
    return TwoDigits(stored + 11) * 60 + TwoDigits(stored + 14);
}

// Day by day.
double SumHours(const PGresult* rows)
{
    double hours = 0;
    double day = 0;
    std::string date;
    for (int row = 0; row < PQntuples(rows); ++row) {
        const char* start = PQgetvalue(rows, row, 2);
        if (date.compare(0, 10, start, 10) != 0) {
            hours += day;
            day = 0;
            date.assign(start, 10);
        }
        day += (MinuteOfDay(PQgetvalue(rows, row, 3)) - MinuteOfDay(start)) / 60.0;
    }
    return hours + day;
}

} // namespace

BareServer::BareServer(const std::string& address) : m_connection(PQconnectdb(address.c_str()))
{
    Require(PQstatus(m_connection.get()) == CONNECTION_OK);
}

void BareServer::Require(bool done) const
{
    if (!done) {
        throw std::runtime_error(PQerrorMessage(m_connection.get()));
    }
}

void BareServer::Run(const std::string& sql)
{
    const Result result(PQexec(m_connection.get(), sql.c_str()));
    Require(PQresultStatus(result.get()) == PGRES_COMMAND_OK);
}

void BareServer::Prepare(const char* name, const char* sql)
{
    const Result result(PQprepare(m_connection.get(), name, sql, 0, nullptr));
    Require(PQresultStatus(result.get()) == PGRES_COMMAND_OK);
}

void BareServer::PostPrepared(const char* name, const std::vector<const char*>& values)
{
    if (PQpipelineStatus(m_connection.get()) == PQ_PIPELINE_OFF) {
        Prepare("read", "BEGIN ISOLATION LEVEL REPEATABLE READ READ ONLY");
        Prepare("write", "BEGIN ISOLATION LEVEL READ COMMITTED");
        Prepare("sign", kSign);
        Prepare("newest", "SELECT COALESCE(NULLIF(current_setting('ptk.last', true), '')::bigint, 0)");
        Prepare("commit", "COMMIT");
        Prepare("rollback", "ROLLBACK");
        Require(PQenterPipelineMode(m_connection.get()) == 1);
    }
    Require(PQsendQueryPrepared(m_connection.get(), name, static_cast<int>(values.size()), values.data(), nullptr, nullptr, 0) == 1);
    ++m_posted;
}

void BareServer::Post(const std::string& sql)
{
    Require(PQsendQueryParams(m_connection.get(), sql.c_str(), 0, nullptr, nullptr, nullptr, nullptr, 0) == 1);
    ++m_posted;
}

BareServer::Result BareServer::Ask()
{
    if (!m_unheard) {
        Require(PQpipelineSync(m_connection.get()) == 1);
    }
    Result last;
    for (; m_posted > 0; --m_posted) {
        last.reset(PQgetResult(m_connection.get()));
        const ExecStatusType status = PQresultStatus(last.get());
        Require(status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK);
        PQgetResult(m_connection.get()); // the empty one behind it
    }
    const Result sync(PQgetResult(m_connection.get()));
    Require(PQresultStatus(sync.get()) == PGRES_PIPELINE_SYNC);
    m_unheard = false;
    return last;
}

void BareServer::BeginRead()
{
    if (m_unheard) {
        Ask();
    }
    PostPrepared("read");
}

void BareServer::EndRead()
{
    PostPrepared("rollback");
    Require(PQpipelineSync(m_connection.get()) == 1);
    m_unheard = true;
}

double BareServer::Card(std::int32_t employee, const std::string& from, const std::string& to)
{
    Post(fmt::format("SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = {} AND StartTime >= '{}' AND "
                     "EndTime <= '{}' ORDER BY StartTime, EndTime",
                     employee, from, to));
    return SumHours(Ask().get());
}

double BareServer::Cards(std::int32_t first, std::int32_t count, const std::string& from, const std::string& to)
{
    Post(fmt::format("SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE EmployeeID = ANY (ARRAY (SELECT "
                     "generate_series({}, {}))) AND StartTime >= '{}' AND EndTime <= '{}' ORDER BY EmployeeID, StartTime, EndTime",
                     first, first + count - 1, from, to));
    return SumHours(Ask().get());
}

std::size_t BareServer::History(std::int32_t employee)
{
    Post(fmt::format("SELECT * FROM _Change WHERE EmployeeAfter = {} ORDER BY ChangeID DESC", employee));
    const Result rows = Ask();
    std::size_t bytes = 0;
    for (int row = 0; row < PQntuples(rows.get()); ++row) {
        for (int column = 0; column < PQnfields(rows.get()); ++column) {
            bytes += static_cast<std::size_t>(PQgetlength(rows.get(), row, column));
        }
    }
    return bytes;
}

std::size_t BareServer::Employees()
{
    Post(kEmployees);
    const Result rows = Ask();
    std::vector<std::array<std::string, 22>> employees(static_cast<std::size_t>(PQntuples(rows.get())));
    std::size_t bytes = 0;
    for (int row = 0; row < PQntuples(rows.get()); ++row) {
        for (int column = 0; column < 22; ++column) {
            std::string& text = employees[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            text.assign(PQgetvalue(rows.get(), row, column), static_cast<std::size_t>(PQgetlength(rows.get(), row, column)));
            bytes += text.size();
        }
    }
    return bytes;
}

void BareServer::Save(std::int32_t record, const std::string& end)
{
    PostPrepared("write");
    Post(fmt::format("SELECT TimeRecordID, EmployeeID, StartTime, EndTime FROM TimeRecord WHERE TimeRecordID = {} FOR UPDATE", record));
    Ask();
    PostPrepared("sign", {"Ann Lee", "bench", "UTC"});
    Post(fmt::format("UPDATE TimeRecord SET EmployeeID = {}, StartTime = '2026-10-31 08:00:00', EndTime = '{}' WHERE TimeRecordID = {}",
                     kFirstEmployee, end, record));
    Ask();
    PostPrepared("newest");
    PostPrepared("commit");
    Ask();
}

} // namespace bench
