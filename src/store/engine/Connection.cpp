#include "store/engine/Connection.h"

#include "store/engine/EngineFailure.h"
#include "store/engine/FileHeader.h"

#include <sqlite3.h>
#include <SQLiteCpp/Exception.h>

namespace ptk {

namespace {

constexpr std::int32_t kFormatNumber = 1; // the newest that this program knows

// A relative path could be one of the engine's special names.
std::string PlainPath(const std::string& path)
{
    return path.starts_with('/') ? path : "./" + path;
}

// Only one thread uses a connection, so the engine need not lock itself for every cell.
constexpr int kOpenMode = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

SQLite::Database OpenFile(const std::string& path)
{
    try {
        return {PlainPath(path), kOpenMode};
    } catch (const SQLite::Exception& exception) {
        throw EngineFailure(exception.getErrorCode(), exception.what());
    }
}

} // namespace

Connection::Connection(const std::string& path) : m_database(OpenFile(path))
{
    if (sqlite3_db_readonly(Handle(), "main") != 0) {
        throw EngineFailure(SQLITE_READONLY, "the file may not be written");
    }
    Hold();
}

void Connection::RefuseForeignFile()
{
    const FileHeader header = ReadFileHeader(Handle());
    if (!header.complete) {
        throw EngineFailure(SQLITE_NOTADB, "the file is too short for a database");
    }
    if (header.truncated) {
        throw EngineFailure(SQLITE_CORRUPT, "the file is shorter than it says");
    }
    if (header.formatNumber > kFormatNumber) {
        throw EngineFailure(SQLITE_NOTADB, "the file was made by a newer version of the program");
    }
    if (header.writeAheadLog) {
        LeaveWriteAheadLog();
    }
}

// Another tool may have chosen that log; with it, a hold keeps writers out but lets readers in.
void Connection::LeaveWriteAheadLog()
{
    Release();
    Run("PRAGMA journal_mode=DELETE");
    Hold();
}

void Connection::Run(const char* sql)
{
    RaiseUnlessDone(Handle(), m_database.tryExec(sql));
}

bool Connection::IsHeld() const
{
    return sqlite3_get_autocommit(Handle()) == 0;
}

void Connection::Hold()
{
    if (!IsHeld()) {
        Run("BEGIN EXCLUSIVE");
    }
}

// EXTRA also flushes the folder after the journal is gone, or a power cut could bring the journal back and undo the commit. It cannot be
// set inside a transaction and takes a tenth of the time of a whole read, so only files that are written get it.
void Connection::PrepareWrite()
{
    if (!m_durable) {
        Release();
        Run("PRAGMA synchronous=EXTRA");
        m_durable = true;
    }
    Hold();
}

void Connection::Commit()
{
    try {
        Run("COMMIT");
    } catch (const Failure&) {
        Undo();
        throw;
    }
    HoldAgain();
}

void Connection::Undo() noexcept
{
    Release();
    HoldAgain();
}

void Connection::Release() noexcept
{
    if (IsHeld()) {
        m_database.tryExec("ROLLBACK"); // what this cannot undo now, the journal undoes when the file is next opened
    }
}

void Connection::HoldAgain() noexcept
{
    m_database.tryExec("BEGIN EXCLUSIVE"); // whoever was quicker is reported by the next use
}

} // namespace ptk
