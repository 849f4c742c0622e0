#include "store/postgres/line/ServerAddress.h"

#include "platform/Succeeds.h"
#include "store/postgres/line/ServerOptions.h"

#include <fmt/format.h>

#include <map>
#include <utility>

namespace ptk {

namespace {

AskPassword& Asker()
{
    static AskPassword ask;
    return ask;
}

std::map<std::string, std::string>& ToldPasswords()
{
    static std::map<std::string, std::string> told;
    return told;
}

} // namespace

bool IsServerAddress(std::string_view name)
{
    return name.starts_with("postgresql:") || name.starts_with("postgres:"); // a misspelt address is refused rather than made a file
}

// The rest of a password that was not written as it must be stands where host and database belong, so nothing with an @ is shown.
std::string SaidServer(const std::string& address)
{
    std::string said = "a server";
    Succeeds([&] {
        const ServerOptions options(address);
        const std::string host = options.Of("host").empty() ? options.Of("hostaddr") : options.Of("host");
        const std::string database = options.Of("dbname");
        if ((host + database).find('@') == std::string::npos) {
            said = fmt::format("{} on {}", database.empty() ? "the database" : database, host.empty() ? "this computer" : host);
        }
    });
    return said;
}

void AskForPasswordsWith(AskPassword ask)
{
    Asker() = std::move(ask);
}

std::optional<std::string> passwords::Told(const std::string& address)
{
    const auto found = ToldPasswords().find(address);
    return found == ToldPasswords().end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string> passwords::Of(const std::string& address)
{
    if (auto told = Told(address)) {
        return told;
    }
    auto answer = Asker() ? Asker()(address) : std::nullopt;
    if (answer) {
        ToldPasswords()[address] = *answer;
    }
    return answer;
}

void passwords::Forget(const std::string& address)
{
    ToldPasswords().erase(address);
}

} // namespace ptk
