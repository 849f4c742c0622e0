// Makes a new database.
#pragma once

#include <functional>
#include <string>

namespace ptk {

class BulkWriter;
class Engine;

// Makes a database with its tables, stored queries, options, the administrator and whatever `fill` adds (without committing), readable by
// its owner only. It appears under `path` (in the platform's own form) complete and safely on disk, or not at all; what killed attempts
// left beside it is removed. Raises 75 when there is something of that name already, which stays untouched, or a -journal, -wal or -shm of
// another database of that name, 76 without the folder, 70, 61, 57, the engine's failures, and what `fill` raises.
//
// With a server's address as `path` the tables and all else are made in its empty database, in one transaction: 75 where they are there
// already, or where the database is not in UTF8. Answers what is left for the server's owner to do, in a sentence; empty: nothing.
std::string CreateDatabase(const std::string& path, const std::function<void(BulkWriter&)>& fill = {});

// Like CreateDatabase, but `fill` works on the database itself, within the transaction that makes it. The trail does not tell what it does.
std::string CreateFilledDatabase(const std::string& path, const std::function<void(Engine&)>& fill);

// Raises 75 where a new database file cannot have this name: see CreateDatabase.
void RefuseTakenPath(const std::string& path);

// Makes a database file like CreateDatabase. What `change` then does to it is told in its trail.
void CreateAndChangeDatabase(const std::string& path, const std::function<void(Engine&)>& change);

// Runs `change` on a new database in a file of its own, which is gone when this returns.
void WithTemporaryDatabase(const std::function<void(Engine&)>& change);

} // namespace ptk
