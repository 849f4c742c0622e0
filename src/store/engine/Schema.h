// The SQL that makes a new database, embedded from data/ at build time, so that the executables need no files of their own.
#pragma once

namespace ptk {

extern const char* const kSchemaSql;        // tables, index, format numbers, the options' row, the administrator
extern const char* const kStoredQueriesSql; // the rows of _StoredQuery
extern const char* const kTrailSql;         // the edit trail: tables and indexes, to be run before its view and triggers
extern const char* const kTrailEntrySql;    // what writes its entries, see TrailTriggers
extern const char* const kPaydaySql;        // what was paid, and the structure's number; may be run again, too
extern const char* const kProfileSql;       // the table of profiles, where it is missing

// The SQL that makes a server's database, to be run in this order.
extern const char* const kServerSchemaSql;
extern const char* const kServerStoredQueriesSql;
extern const char* const kServerTrailFunctionsSql; // may be run again over an older version of them
extern const char* const kServerTrailSql;          // without the triggers, which come behind it
extern const char* const kServerStructure3Sql;     // also brings a database of structure 2 to 3, behind the functions and before the roles
extern const char* const kServerRolesSql;          // may be run again; leaves the roles out where whoever runs it may not make them

} // namespace ptk
