#include "store/postgres/ServerCreator.h"

#include "platform/Failure.h"
#include "store/engine/RecordSet.h"
#include "store/engine/Schema.h"
#include "store/postgres/PostgresEngine.h"
#include "store/postgres/ServerStrangers.h"
#include "store/postgres/ServerTriggers.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr const char* kEncoding = "SELECT current_setting('server_encoding')";
constexpr const char* kTables =
    "SELECT COUNT(*) FROM pg_class JOIN pg_namespace ON pg_namespace.oid = relnamespace AND nspname = current_schema() WHERE relname IN "
    "('company', 'employee', 'timerecord', '_system', '_checklimits', '_storedquery', '_change', '_structure', '_payday', '_profile')";
constexpr const char* kAlone = "SELECT pg_try_advisory_xact_lock(CAST(8074110 AS bigint))"; // a number that makers of tables agreed upon
constexpr const char* kRoles = "SELECT COUNT(*) FROM pg_roles WHERE rolname IN ('ptk_office', 'ptk_reader')";
constexpr std::int32_t kRoleCount = 2;

void Refuse(const std::string& why)
{
    throw Failure(failure::PathFileAccess, "PTK", why);
}

void RefuseUnfit(PostgresEngine& engine)
{
    if (!engine.Select(kAlone)->BooleanAt(0)) {
        Refuse("Somebody else is making the program's tables in this database.");
    }
    if (engine.Select(kEncoding)->TextAt(0) != "UTF8") {
        Refuse("The server's database must be in the encoding UTF8, for names of any script.");
    }
    if (engine.Select(kTables)->Int32At(0) != 0) {
        Refuse("The server's database already holds tables of these names.");
    }
}

// Refuses what others made, or could make, in the schema: they could have everybody run it.
void RefuseStrangers(PostgresEngine& engine)
{
    const ServerStrangers strangers = FindStrangers(engine);
    for (const auto& names : {strangers.functions, strangers.operators}) {
        if (!names.empty()) {
            Refuse("The schema for the tables holds functions or operators that are not the program's: " + names.front());
        }
    }
    if (std::find(strangers.makers.begin(), strangers.makers.end(), "PUBLIC") != strangers.makers.end()) {
        Refuse("Everybody may make objects in the schema for the tables. Its owner must revoke that right first: "
               "REVOKE CREATE ON SCHEMA public FROM PUBLIC");
    }
}

} // namespace

ServerRoles CreateServerDatabase(const std::string& address, const std::function<void(PostgresEngine&)>& fill)
{
    PostgresEngine engine(address, NewStructure{});
    engine.BeginMany();
    RefuseUnfit(engine);
    const std::string triggers = ServerTrailTriggers();
    for (const char* sql : {kServerSchemaSql, kServerStoredQueriesSql, kServerTrailFunctionsSql, kServerTrailSql, triggers.c_str(),
                            kServerStructure3Sql, kServerRolesSql}) {
        engine.RunScript(sql);
    }
    RefuseStrangers(engine);
    if (fill) {
        engine.WithoutTrail([&] { fill(engine); }); // what a new database starts with is no change
    }
    const bool ready = engine.Select(kRoles)->Int32At(0) == kRoleCount;
    engine.Commit();
    return ready ? ServerRoles::Ready : ServerRoles::Missing;
}

} // namespace ptk
