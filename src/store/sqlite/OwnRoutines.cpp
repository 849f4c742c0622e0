#include "store/sqlite/OwnRoutines.h"

#include "store/engine/Schema.h"
#include "store/sqlite/TrailTriggers.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace ptk {

namespace {

constexpr const char* kOwnRoutines = "SELECT type, name, tbl_name, sql FROM sqlite_master WHERE type IN ('trigger', 'view') ORDER BY name";
constexpr const char* kOwnTables = "SELECT name FROM sqlite_master WHERE type IN ('table', 'view')";

// Digests of the texts that earlier versions gave to routines.
constexpr std::uint64_t kEarlier[] = {
    0x28AAE9031B405FDFU, // _EditWritten, before an entry had a reason
};

// The FNV-1a digest, which tells texts apart that nobody forged.
std::uint64_t DigestOf(const std::string& text)
{
    std::uint64_t digest = 0xCBF29CE484222325U;
    for (const char byte : text) {
        digest = (digest ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    return digest;
}

} // namespace

OwnRoutines ReadOwnRoutines()
{
    SQLite::Database file(":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    file.exec(kSchemaSql);
    file.exec(kTrailSql);
    file.exec(TrailTriggers());
    file.exec(TrailEntryTrigger());
    file.exec(kPaydaySql);
    file.exec(kProfileSql);
    OwnRoutines own;
    for (SQLite::Statement rows(file, kOwnRoutines); rows.executeStep();) {
        own.routines.push_back({rows.getColumn(0), rows.getColumn(1), rows.getColumn(2), rows.getColumn(3)});
    }
    for (SQLite::Statement rows(file, kOwnTables); rows.executeStep();) {
        own.tables.push_back(rows.getColumn(0));
    }
    return own;
}

bool IsOfEarlierVersion(const Routine& routine)
{
    return std::find(std::begin(kEarlier), std::end(kEarlier), DigestOf(routine.text)) != std::end(kEarlier);
}

} // namespace ptk
