// A database on the tests' server with the program's tables.
#pragma once

#include "store/whole/DatabaseCreator.h"
#include "support/ServerDatabase.h"

namespace ptk {

class NewServerDatabase : public ServerDatabase
{
public:
    NewServerDatabase() { CreateDatabase(Address()); }
};

} // namespace ptk
