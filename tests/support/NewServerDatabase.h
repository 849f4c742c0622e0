// A database on the tests' server with the program's tables.
#pragma once

#include "store/whole/DatabaseCreator.h"
#include "support/ServerDatabase.h"

namespace ptk {

class NewServerDatabase : public ServerDatabase
{
public:
    NewServerDatabase() { CreateDatabase(Address()); }

    // Drops all checks of values, as databases of structure 2 had none: their columns took every value of their types.
    void TakeAnyValue() const
    {
        Run("DO $$ DECLARE c record; BEGIN "
            "FOR c IN SELECT conrelid::regclass AS tab, conname FROM pg_constraint WHERE contype = 'c' AND conrelid <> 0 LOOP "
            "EXECUTE format('ALTER TABLE %s DROP CONSTRAINT %I', c.tab, c.conname); END LOOP; END $$");
    }
};

} // namespace ptk
