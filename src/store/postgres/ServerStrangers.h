// What others put beside the tables of a server's database.
#pragma once

#include <string>
#include <vector>

namespace ptk {

class PostgresEngine;

// Functions and operators of others. A statement of the program may mean one of these by a name, since the server takes one whose arguments
// fit better instead of its own.
struct ServerStrangers
{
    std::vector<std::string> functions; // with the types of their arguments; those of extensions are not among them
    std::vector<std::string> operators;
    std::vector<std::string> makers; // roles that may make such, "PUBLIC" for everybody; not the owner of the tables or of their schema
};

// Looks in the schema of the table _Structure, by questions that mean nothing but the server's own. Raises the failures of a statement.
[[nodiscard]] ServerStrangers FindStrangers(PostgresEngine& engine);

} // namespace ptk
