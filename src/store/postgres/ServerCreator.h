// Makes a server's database ready.
#pragma once

#include <functional>
#include <string>

namespace ptk {

class PostgresEngine;

// Whether the roles of the office and of readers, which belong to the whole server, are there and have their rights.
enum class ServerRoles
{
    Ready,
    Missing // the role that makes the database may not make roles
};

// Makes all tables, queries, triggers and rights, and what `fill` adds, in one transaction, or nothing. The database must be there, in
// UTF8, without any table of these names and any function or operator of others, and nobody else may be making the same. Afterwards PUBLIC
// may make nothing in the schema. Raises 14 where the server cannot be reached, and 75 where the database is not so.
ServerRoles CreateServerDatabase(const std::string& address, const std::function<void(PostgresEngine&)>& fill);

} // namespace ptk
