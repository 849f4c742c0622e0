#include "store/postgres/ServerStructure.h"

#include "store/engine/Schema.h"
#include "store/postgres/line/ServerFailure.h"
#include "store/postgres/line/ServerLine.h"

#include <fmt/format.h>

#include <charconv>
#include <string_view>
#include <system_error>

namespace ptk {

namespace {

constexpr std::int64_t kOldestStructure = 1;
constexpr const char* kNoTables = "the server's database has no tables of this program";
constexpr const char* kNoNumber = "the server's database does not tell by a number in its table _Structure which tables it has";
constexpr const char* kNewer = "the server's database was made by a newer version of the program";
constexpr const char* kOlder = "the server's database is of an earlier version and must be brought up to date by its owner: ";

constexpr const char* kVersion = "SELECT version FROM _Structure";
constexpr const char* kBegin = "BEGIN; LOCK TABLE _Structure IN EXCLUSIVE MODE"; // one does it, others wait and find it done

// A script that databases older than `to` need, whatever they were before.
struct Upgrade
{
    std::int64_t to;
    const char* const& sql;
};

// The scripts in the order in which they are run.
constexpr Upgrade kUpgrades[] = {
    {3, kServerTrailFunctionsSql},
    {3, kServerStructure3Sql},
    {3, kServerRolesSql},
};

std::int64_t NumberIn(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < kOldestStructure) {
        throw ServerFailure(engine::NoDatabase, kNoNumber);
    }
    return number;
}

std::int64_t VersionOf(ServerLine& line)
{
    try {
        const auto results = line.Send({{kVersion, {}, false, false}});
        return NumberIn(results.front().RowCount() == 0 ? std::string_view() : results.front().Text(0, 0));
    } catch (const ServerFailure& failure) {
        if (failure.IsMissingTable()) {
            throw ServerFailure(engine::NoDatabase, kNoTables);
        }
        throw;
    }
}

void BringUpToDate(ServerLine& line)
{
    line.RunScript(kBegin);
    const std::int64_t version = VersionOf(line);
    for (const Upgrade& upgrade : kUpgrades) {
        if (version < upgrade.to) {
            line.RunScript(upgrade.sql);
        }
    }
    line.RunScript(fmt::format("UPDATE _Structure SET version = {}; COMMIT", kServerStructure).c_str());
}

} // namespace

void RequireStructure(ServerLine& line)
{
    const std::int64_t version = VersionOf(line);
    if (version > kServerStructure) {
        throw ServerFailure(engine::NoDatabase, kNewer);
    }
    if (version == kServerStructure) {
        return;
    }
    try {
        BringUpToDate(line);
    } catch (const ServerFailure& failure) {
        throw ServerFailure(engine::NoDatabase, kOlder + failure.Description());
    }
}

} // namespace ptk
