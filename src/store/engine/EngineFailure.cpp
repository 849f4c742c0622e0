#include "store/engine/EngineFailure.h"

#include <sqlite3.h>

namespace ptk {

namespace {

constexpr int kPrimaryCode = 0xFF; // what extended result codes keep in the low byte
}

Failure EngineFailure(int resultCode, std::string description)
{
    return {resultCode & kPrimaryCode, kEngineSource, std::move(description)};
}

void RaiseUnlessDone(sqlite3* database, int resultCode)
{
    if (resultCode != SQLITE_OK) {
        throw EngineFailure(resultCode, sqlite3_errmsg(database));
    }
}

} // namespace ptk
