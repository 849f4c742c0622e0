// What stands in the address of a server.
#pragma once

#include "store/postgres/LibPq.h"

#include <memory>
#include <string>
#include <string_view>

namespace ptk {

// As the client library reads it. Nothing of an address but host and database is for other eyes: what else is wrong with it is said without
// its words.
class ServerOptions
{
public:
    // Raises 14 for an address that cannot be read, and for one with a password in it: what stands in the configuration is read by too
    // many.
    explicit ServerOptions(const std::string& address);

    // Empty where the address does not say it.
    [[nodiscard]] std::string Of(std::string_view keyword) const;

    // The name to be looked up for a connection, the environment's where the address has none; empty where there is nothing to look up.
    [[nodiscard]] std::string NameToLookUp() const;

    // How the line is to be protected where the address does not say it: a password goes to another computer over TLS alone. Empty where
    // what the library does by itself is enough.
    [[nodiscard]] std::string ImpliedProtection() const;

    // The library's words in one line, without values of the address that they repeat.
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
