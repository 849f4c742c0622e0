// The parts of a server's address.
#pragma once

#include "store/postgres/line/LibPq.h"

#include <memory>
#include <string>
#include <string_view>

namespace ptk {

// Reads an address as the client library does. Only the host, its port and the database may be told to others: any other fault of an
// address is told without the address's words.
class ServerOptions
{
public:
    // Raises 14 for an address that cannot be read, and for one with a password in it, since too many can read the configuration.
    explicit ServerOptions(const std::string& address);

    // The value of a keyword; empty where the address does not say it.
    [[nodiscard]] std::string Of(std::string_view keyword) const;

    // The name to be looked up for a connection, the environment's where the address has none. Empty where there is nothing to look up.
    [[nodiscard]] std::string NameToLookUp() const;

    // The sslmode for an address that does not say one: a password goes to another computer over TLS alone. Empty where what the library
    // does by itself is enough.
    [[nodiscard]] std::string ImpliedProtection() const;

    // The library's words in one line, without values of the address that others may not see.
    [[nodiscard]] std::string Cleaned(std::string words) const;

private:
    struct Ending
    {
        void operator()(PQconninfoOption* options) const { Library().conninfoFree(options); }
    };

    [[nodiscard]] std::string Host() const;
    [[nodiscard]] bool IsLocal() const;

    std::unique_ptr<PQconninfoOption, Ending> m_first;
};

} // namespace ptk
