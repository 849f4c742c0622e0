// What stands beside the tables of a server's database and is not the program's.
#pragma once

#include <string>
#include <vector>

namespace ptk {

class PostgresEngine;

// A statement that names a function or an operator may mean one of these, since one whose arguments fit better is taken instead of the
// server's own.
struct ServerStrangers
{
    std::vector<std::string> functions; // with the types of their arguments; those of extensions are not among them
    std::vector<std::string> operators;
    std::vector<std::string> makers; // the roles that may make such, "PUBLIC" for everybody; not the owner of the tables or of their schema
};

// In the schema of the table _Structure. The questions themselves mean nothing but the server's own. Raises the failures of a statement.
[[nodiscard]] ServerStrangers FindStrangers(PostgresEngine& engine);

} // namespace ptk
