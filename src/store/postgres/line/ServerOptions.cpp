#include "store/postgres/line/ServerOptions.h"

#include "store/postgres/line/ServerFailure.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace ptk {

namespace {

constexpr const char* kNotReadable = "the address of the server cannot be read";
constexpr const char* kHoldsPassword =
    "the address of the server holds a password; put it into the password file (~/.pgpass) instead and take it out";

std::string EnvironmentValue(const char* name)
{
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool IsNumericHost(const std::string& host)
{
    std::array<unsigned char, sizeof(in6_addr)> address{};
    return ::inet_pton(AF_INET, host.c_str(), address.data()) == 1 || ::inet_pton(AF_INET6, host.c_str(), address.data()) == 1;
}

bool IsSocketFolder(const std::string& host)
{
    return host.empty() || host.front() == '/' || host.front() == '@';
}

// Whether a value of the address must not be shown: a failure may name where the server is, and nothing else.
bool IsSecret(std::string_view keyword)
{
    constexpr std::array<std::string_view, 4> kShown{"host", "hostaddr", "port", "dbname"};
    return std::find(kShown.begin(), kShown.end(), keyword) == kShown.end();
}

void ReplaceAll(std::string& text, const std::string& what, std::string_view with)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

PQconninfoOption* Parsed(const std::string& address)
{
    char* error = nullptr; // it would repeat the address, and with it a password
    PQconninfoOption* const first = Library().conninfoParse(address.c_str(), &error);
    Library().freemem(error);
    return first;
}

} // namespace

ServerOptions::ServerOptions(const std::string& address) : m_first(Parsed(address))
{
    if (m_first == nullptr) {
        throw ServerFailure(engine::CannotOpen, kNotReadable);
    }
    if (!Of("password").empty() || !Of("sslpassword").empty()) {
        throw ServerFailure(engine::CannotOpen, kHoldsPassword);
    }
}

std::string ServerOptions::Of(std::string_view keyword) const
{
    for (const PQconninfoOption* option = m_first.get(); option->keyword != nullptr; ++option) {
        if (keyword == option->keyword && option->val != nullptr) {
            return option->val;
        }
    }
    return {};
}

// The host as the library takes it: an address in figures before a name.
std::string ServerOptions::Host() const
{
    for (std::string host : {Of("hostaddr"), EnvironmentValue("PGHOSTADDR"), Of("host"), EnvironmentValue("PGHOST")}) {
        if (!host.empty()) {
            return host;
        }
    }
    return {};
}

bool ServerOptions::IsLocal() const
{
    const std::string host = Host();
    return IsSocketFolder(host) || host == "localhost" || host == "::1" || (IsNumericHost(host) && host.starts_with("127."));
}

// The host of a service is known to the library alone, so it is not looked up.
std::string ServerOptions::NameToLookUp() const
{
    const std::string host = Host();
    const bool isName = !IsSocketFolder(host) && !IsNumericHost(host) && host.find(',') == std::string::npos;
    return isName && Of("service").empty() ? host : std::string();
}

std::string ServerOptions::ImpliedProtection() const
{
    const std::string chosen = EnvironmentValue("PGSSLMODE");
    const bool isStrict = chosen == "require" || chosen == "verify-ca" || chosen == "verify-full";
    return IsLocal() || isStrict || !Of("sslmode").empty() || !Of("service").empty() ? "" : "require";
}

std::string ServerOptions::Cleaned(std::string words) const
{
    for (const PQconninfoOption* option = m_first.get(); option->keyword != nullptr; ++option) {
        if (option->val != nullptr && *option->val != '\0' && IsSecret(option->keyword)) {
            ReplaceAll(words, '"' + std::string(option->val) + '"', "\"...\"");
        }
    }
    std::replace_if(
        words.begin(), words.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
    words.erase(words.find_last_not_of(' ') + 1);
    return words;
}

} // namespace ptk
