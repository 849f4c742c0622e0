// A database of a test's own on the tests' server. It is dropped when the object ends.
#pragma once

#include "store/postgres/line/ServerLine.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace ptk {

// The folder of the socket of the server that CTest, or the test program itself, started.
inline std::string TestServer()
{
    const char* const folder = std::getenv("PTK_TEST_SERVER");
    if (folder == nullptr) {
        throw std::runtime_error("PTK_TEST_SERVER names no server's socket");
    }
    return folder;
}

class ServerDatabase
{
public:
    // Makes an empty database.
    ServerDatabase()
    {
        static int made = 0;
        m_name = fmt::format("ptk_{}_{}", ::getpid(), ++made);
        Owner("postgres").RunScript(fmt::format("CREATE DATABASE {} TEMPLATE template0 ENCODING 'UTF8' {}", m_name, Locale()).c_str());
        if (IsStrange()) {
            Run("GRANT CREATE ON SCHEMA public TO PUBLIC");
        }
    }
    ~ServerDatabase() { Owner("postgres").RunScript(fmt::format("DROP DATABASE {} WITH (FORCE)", m_name).c_str()); }
    ServerDatabase(const ServerDatabase&) = delete;
    ServerDatabase& operator=(const ServerDatabase&) = delete;

    [[nodiscard]] std::string Address(const std::string& user = "postgres") const { return AddressOf(m_name, user); }

    // Runs SQL as another tool would.
    void Run(const std::string& sql) const { Owner(m_name).RunScript(sql.c_str()); }

private:
    // With PTK_TEST_STRANGE_SERVER databases are as offices elsewhere may have them: in a locale where the small letter of I is none of the
    // 26 letters, and with everybody allowed to make objects in them, as up to PostgreSQL 14.
    static bool IsStrange() { return std::getenv("PTK_TEST_STRANGE_SERVER") != nullptr; }
    static const char* Locale() { return IsStrange() ? "LOCALE_PROVIDER icu ICU_LOCALE 'tr-TR'" : ""; }

    static std::string AddressOf(const std::string& name, const std::string& user)
    {
        return fmt::format("postgresql:///{}?host={}&user={}", name, TestServer(), user);
    }
    static ServerLine Owner(const std::string& name) { return ServerLine(AddressOf(name, "postgres"), std::nullopt); }

    std::string m_name;
};

} // namespace ptk
