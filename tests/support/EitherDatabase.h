// The database that a test is about: a file, or, in the test program that runs beside a server, one on that server.
#pragma once

#include "store/postgres/PostgresEngine.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/whole/DatabaseCreator.h"
#include "support/ServerDatabase.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <optional>
#include <string>

namespace ptk {

class EitherDatabase
{
public:
    EitherDatabase()
    {
        if (std::getenv("PTK_TEST_SERVER") != nullptr) {
            m_server.emplace();
        }
        CreateDatabase(Name());
    }

    [[nodiscard]] bool IsOnServer() const { return m_server.has_value(); }
    [[nodiscard]] std::string Name() const { return IsOnServer() ? m_server->Address() : Folder() + "/system/ptk_11.mdb"; }

    // The program folder.
    [[nodiscard]] const std::string& Folder() const { return m_folder.Path(); }

    // Opens the database as another tool would.
    [[nodiscard]] std::unique_ptr<Engine> Open() const
    {
        return IsOnServer() ? std::unique_ptr<Engine>(std::make_unique<PostgresEngine>(Name())) : std::make_unique<SqliteEngine>(Name());
    }

private:
    TemporaryFolder m_folder;
    std::optional<ServerDatabase> m_server;
};

} // namespace ptk
