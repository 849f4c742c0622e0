// What a new database starts with, embedded from data/ at build time, so that the executables need no files of their own.
#pragma once

namespace ptk {

extern const char* const kSchemaSql;        // tables, index, format numbers, the options' row, the administrator
extern const char* const kStoredQueriesSql; // the rows of _StoredQuery
extern const char* const kTrailSql;         // the edit trail: tables, indexes, triggers

} // namespace ptk
