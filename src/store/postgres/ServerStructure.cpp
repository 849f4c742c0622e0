#include "store/postgres/ServerStructure.h"

#include "store/engine/Schema.h"
#include "store/postgres/ServerFailure.h"
#include "store/postgres/ServerLine.h"

#include <fmt/format.h>

#include <string>

namespace ptk {

namespace {

constexpr const char* kVersion = "SELECT version FROM _Structure";
constexpr const char* kBegin = "BEGIN; LOCK TABLE _Structure IN EXCLUSIVE MODE"; // one does it, others wait and find it done

struct Upgrade
{
    std::int64_t to;
    const char* const& sql;
};

constexpr Upgrade kUpgrades[] = {
    {2, kServerTrailFunctionsSql}, // the trail tells of itself to those who listen
};

std::int64_t VersionOf(ServerLine& line)
{
    try {
        const auto results = line.Send({{kVersion, {}, false, false}});
        return results.front().RowCount() == 0 ? 0 : std::stoll(std::string(results.front().Text(0, 0)));
    } catch (const ServerFailure& failure) {
        if (failure.IsMissingTable()) {
            throw ServerFailure(engine::NoDatabase, "the server's database has no tables of this program");
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
            line.RunScript(fmt::format("UPDATE _Structure SET version = {}", upgrade.to).c_str());
        }
    }
    line.RunScript("COMMIT");
}

} // namespace

void RequireStructure(ServerLine& line)
{
    const std::int64_t version = VersionOf(line);
    if (version > kServerStructure) {
        throw ServerFailure(engine::NoDatabase, "the server's database was made by a newer version of the program");
    }
    if (version == kServerStructure) {
        return;
    }
    try {
        BringUpToDate(line);
    } catch (const ServerFailure& failure) {
        throw ServerFailure(engine::NoDatabase,
                            "the server's database is of an earlier version and must be brought up to date by its owner: " +
                                failure.Description());
    }
}

} // namespace ptk
