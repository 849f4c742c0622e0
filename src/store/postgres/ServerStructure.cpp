#include "store/postgres/ServerStructure.h"

#include "store/postgres/ServerFailure.h"
#include "store/postgres/ServerLine.h"

#include <string>

namespace ptk {

namespace {

constexpr const char* kVersion = "SELECT version FROM _Structure";

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

} // namespace

void RequireStructure(ServerLine& line)
{
    if (VersionOf(line) > kServerStructure) {
        throw ServerFailure(engine::NoDatabase, "the server's database was made by a newer version of the program");
    }
}

} // namespace ptk
