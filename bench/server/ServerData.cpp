#include "server/ServerData.h"

#include "platform/text/Text.h"
#include "server/BareServer.h"
#include "store/whole/DatabaseCreator.h"

#include <fmt/format.h>

#include <set>

namespace bench {

namespace {

std::string serverFolder;

std::string AddressOf(const std::string& database)
{
    return fmt::format("postgresql:///{}?host={}&user=postgres", database, serverFolder);
}

std::string EmployeesSql(std::int32_t employees)
{
    return fmt::format(
        "INSERT INTO Employee SELECT {1} + i, lpad((i % 1000)::text, 3, '0') || '-' || lpad((i % 100)::text, 2, '0') || '-' || lpad((i % "
        "10000)::text, 4, '0'), 'First' || (i * 7919::bigint % {0}), 'Last' || (i * 104729::bigint % {0}), i || ' Main Street', '', "
        "'Springfield', 'IL', '62701', '555-0100', i + 1, '1980-01-01', '2010-05-03', '1899-12-30', 12.3, 18.45, true, 1, i % 2 = 1, 30, "
        "15, '' FROM generate_series(0, {0} - 1) AS i",
        employees, kFirstEmployee);
}

std::string RecordsSql(const Size& size)
{
    return fmt::format("INSERT INTO TimeRecord (EmployeeID, StartTime, EndTime) SELECT {1} + i % {2}, day + interval '8 hours', day + "
                       "interval '16 hours 30 minutes' FROM generate_series(0, {0} - 1) AS i, LATERAL (SELECT timestamp '{3}' + i / {2} * "
                       "interval '1 day' AS day) AS days",
                       size.records, kFirstEmployee, size.employees, ptk::FormatDateTime(FirstDay(size), "yyyy-mm-dd"));
}

} // namespace

void ServerFolder(std::string folder)
{
    serverFolder = std::move(folder);
}

std::string ServerFolder()
{
    return serverFolder;
}

std::string ServerDatabase(const Size& size)
{
    static std::set<std::string> made;
    const std::string name = std::string("bench_") + size.name;
    std::string address = AddressOf(name);
    if (made.insert(name).second) {
        BareServer(AddressOf("postgres")).Run("DROP DATABASE IF EXISTS " + name);
        BareServer(AddressOf("postgres")).Run("CREATE DATABASE " + name + " TEMPLATE template0 ENCODING 'UTF8'");
        ptk::CreateDatabase(address);
        BareServer server(address);
        server.Run("SET session_replication_role = replica"); // no trail of what follows
        server.Run(EmployeesSql(size.employees));
        if (size.history) {
            server.Run("SET session_replication_role = origin");
        }
        server.Run(RecordsSql(size));
        server.Run("VACUUM ANALYZE");
        server.Run("CHECKPOINT");
    }
    return address;
}

} // namespace bench
