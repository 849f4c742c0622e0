#include "store/sqlite/EngineFailure.h"

#include "store/engine/EngineNumber.h"

#include <sqlite3.h>

namespace ptk {

namespace {

// The layers above both engines know the numbers by these names.
static_assert(engine::Refused == SQLITE_ERROR && engine::Busy == SQLITE_BUSY && engine::NoMemory == SQLITE_NOMEM &&
              engine::ReadOnly == SQLITE_READONLY && engine::Interrupted == SQLITE_INTERRUPT && engine::Lost == SQLITE_IOERR &&
              engine::Damaged == SQLITE_CORRUPT && engine::NotFound == SQLITE_NOTFOUND && engine::DiskFull == SQLITE_FULL &&
              engine::CannotOpen == SQLITE_CANTOPEN && engine::Constraint == SQLITE_CONSTRAINT && engine::Misuse == SQLITE_MISUSE &&
              engine::Parameter == SQLITE_RANGE && engine::NoDatabase == SQLITE_NOTADB);

constexpr int kPrimaryCode = 0xFF; // the part of an extended result code that is kept

// What a code means to the program's users; nullptr for the codes that say too little by themselves.
const char* Meaning(int primaryCode)
{
    switch (primaryCode) {
    case SQLITE_PERM:
        return "the database file may not be read";
    case SQLITE_BUSY:
        return "the database is in use by another program";
    case SQLITE_LOCKED:
        return "the database is in use by this program";
    case SQLITE_NOMEM:
        return "out of memory";
    case SQLITE_READONLY:
        return "the database file may not be written";
    case SQLITE_INTERRUPT:
        return "the statement did not come to an end";
    case SQLITE_IOERR:
        return "the disk failed while reading or writing the database";
    case SQLITE_CORRUPT:
        return "the database file is damaged";
    case SQLITE_FULL:
        return "the disk is full";
    case SQLITE_CANTOPEN:
        return "the database file is missing or cannot be opened";
    case SQLITE_NOTADB:
        return "the file is not a database of this program";
    default:
        return nullptr;
    }
}

} // namespace

Failure EngineFailure(int resultCode, std::string description)
{
    return {resultCode & kPrimaryCode, kFileSource, std::move(description)};
}

Failure EngineFailure(int resultCode)
{
    const char* meaning = Meaning(resultCode & kPrimaryCode);
    return EngineFailure(resultCode, std::string(meaning == nullptr ? sqlite3_errstr(resultCode) : meaning));
}

Failure EngineFailure(int resultCode, sqlite3* database)
{
    const char* meaning = Meaning(resultCode & kPrimaryCode);
    return EngineFailure(resultCode, std::string(meaning == nullptr ? sqlite3_errmsg(database) : meaning));
}

void RaiseUnlessDone(sqlite3* database, int resultCode)
{
    if (resultCode != SQLITE_OK) {
        throw EngineFailure(resultCode, database);
    }
}

} // namespace ptk
