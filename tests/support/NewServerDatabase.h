// A database on the tests' server with the program's tables, as create-database makes them.
#pragma once

#include "store/postgres/PostgresEngine.h"
#include "store/Schema.h"
#include "support/ServerDatabase.h"

namespace ptk {

class NewServerDatabase : public ServerDatabase
{
public:
    NewServerDatabase()
    {
        PostgresEngine engine(Address(), NewStructure{});
        engine.BeginMany();
        for (const char* sql : {kServerSchemaSql, kServerStoredQueriesSql, kServerTrailFunctionsSql, kServerTrailSql, kServerRolesSql}) {
            engine.RunScript(sql);
        }
        engine.Commit();
    }
};

} // namespace ptk
