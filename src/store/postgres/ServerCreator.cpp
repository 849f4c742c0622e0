#include "store/postgres/ServerCreator.h"

#include "platform/Failure.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Schema.h"
#include "store/postgres/PostgresEngine.h"

namespace ptk {

namespace {

constexpr const char* kEncoding = "SELECT current_setting('server_encoding')";
constexpr const char* kTables =
    "SELECT COUNT(*) FROM pg_class WHERE relnamespace = CAST(current_schema() AS regnamespace) AND relname IN ("
    "'company', 'employee', 'timerecord', '_system', '_checklimits', '_storedquery', '_change', '_structure', '_payday')";
constexpr const char* kRoles = "SELECT COUNT(*) FROM pg_roles WHERE rolname IN ('ptk_office', 'ptk_reader')";
constexpr std::int32_t kRoleCount = 2;

void Refuse(const char* why)
{
    throw Failure(failure::PathFileAccess, "PTK", why);
}

void RefuseUnfit(PostgresEngine& engine)
{
    if (engine.Select(kEncoding)->TextAt(0) != "UTF8") {
        Refuse("The server's database must be in the encoding UTF8, for names of any script.");
    }
    if (engine.Select(kTables)->Int32At(0) != 0) {
        Refuse("The server's database already holds tables of these names.");
    }
}

} // namespace

ServerRoles CreateServerDatabase(const std::string& address, const std::function<void(PostgresEngine&)>& fill)
{
    PostgresEngine engine(address, NewStructure{});
    engine.BeginMany();
    RefuseUnfit(engine);
    for (const char* sql :
         {kServerSchemaSql, kServerStoredQueriesSql, kServerTrailFunctionsSql, kServerTrailSql, kServerStructure3Sql, kServerRolesSql}) {
        engine.RunScript(sql);
    }
    if (fill) {
        engine.Untold([&] { fill(engine); }); // what a new database starts with is no change
    }
    const bool ready = engine.Select(kRoles)->Int32At(0) == kRoleCount;
    engine.Commit();
    return ready ? ServerRoles::Ready : ServerRoles::Missing;
}

} // namespace ptk
