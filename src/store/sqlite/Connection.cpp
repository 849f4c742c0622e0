#include "store/sqlite/Connection.h"

#include "platform/Waiting.h"
#include "store/engine/RecordSet.h"
#include "store/sqlite/EditTrail.h"
#include "store/sqlite/EngineFailure.h"
#include "store/sqlite/FileHeader.h"
#include "store/sqlite/PatientDisk.h"
#include "store/sqlite/SqliteStatement.h"

#include <sqlite3.h>
#include <SQLiteCpp/Exception.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <thread>

namespace ptk {

namespace {

constexpr const char* kNewer = "the database file was made by a newer version of the program";
constexpr std::chrono::seconds kPatience(1);
constexpr std::chrono::milliseconds kBetweenTries(5);

constexpr auto kReplaced = "the database file was replaced meanwhile, by a restore for instance; the next try opens the new one";
constexpr auto kNotYetSafe = "the change is done, but may not survive a power cut";

// A relative path could be one of the engine's special names.
std::string PlainPath(const std::string& path)
{
    return path.starts_with('/') ? path : "./" + path;
}

// The engine would read a device as if it were a file, and does not tell a folder or a pipe from a missing file.
void RefuseIrregularFile(const std::string& path)
{
    struct stat file
    {
    };
    if (stat(path.c_str(), &file) == 0 && !S_ISREG(file.st_mode)) {
        throw EngineFailure(SQLITE_CANTOPEN, "the database's path leads to a folder, a pipe or a device instead of a file");
    }
}

// Only one thread uses a connection, so the engine need not lock itself for every cell.
int OpenMode(Connection::Access access)
{
    return SQLITE_OPEN_NOMUTEX | (access == Connection::Access::Write ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
}

// Nobody asks how much memory the engine takes, and counting it costs a sixth of an opening. The engine refuses this once it is in use.
void SpareMemoryCount()
{
    static const bool spared = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK;
    static_cast<void>(spared);
}

SQLite::Database OpenFile(const std::string& path, Connection::Access access)
{
    SpareMemoryCount();
    try {
        return {path, OpenMode(access), 0, PatientDisk()};
    } catch (const SQLite::Exception& exception) {
        RefuseIrregularFile(path);
        throw EngineFailure(exception.getErrorCode());
    }
}

// A view in a file may make texts of any length. Some of them take only one step of the engine each and yet minutes.
void BoundTexts(sqlite3* database)
{
    constexpr int kLongestText = 64 << 20; // bytes
    constexpr int kLongestPattern = 1000;  // bytes
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, kLongestText);
    sqlite3_limit(database, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, kLongestPattern);
}

sqlite3_stmt* PreparedRollback(sqlite3* database)
{
    sqlite3_stmt* statement = nullptr;
    RaiseUnlessDone(database, sqlite3_prepare_v3(database, "ROLLBACK", -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statement;
}

} // namespace

Connection::Connection(const std::string& path, Access access, WhenHeld whenHeld)
    : m_path(PlainPath(path)), m_database(OpenFile(m_path, access)), m_rollback(PreparedRollback(Handle()), sqlite3_finalize),
      m_access(access), m_whenHeld(whenHeld)
{
    if (FileSize(Handle()) == 0) { // as a device's always is
        RefuseIrregularFile(m_path);
    }
    if (access == Access::Write && sqlite3_db_readonly(Handle(), "main") != 0) {
        throw EngineFailure(SQLITE_READONLY);
    }
    BoundTexts(Handle());
    Inspect();
    sqlite3_busy_handler(
        Handle(), [](void* connection, int /*tries*/) { return static_cast<Connection*>(connection)->Wait() ? 1 : 0; }, this);
    Hold();
}

void Connection::Inspect()
{
    // This comes before the hold, which would finish what another program's crash left undone.
    if (const FileHeader header = ReadFileHeader(Handle()); header.signature) {
        RefuseOtherPrograms(header.applicationId, header.formatNumber);
        m_inOrder = !header.writeAheadLog && FileSize(Handle()) >= header.fileSize;
    }
}

std::optional<Connection::FileState> Connection::ReadState() const
{
    constexpr std::int64_t kSecond = 1'000'000'000; // nanoseconds
    constexpr std::int64_t kTooFresh = 50'000'000;  // nanoseconds: several ticks of the clock that files are dated by
    struct stat file
    {
    };
    struct timespec now
    {
    };
    if (stat(m_path.c_str(), &file) != 0 || !S_ISREG(file.st_mode) || clock_gettime(CLOCK_REALTIME, &now) != 0) {
        return std::nullopt;
    }
    const auto nanoseconds = [](const timespec& time) { return time.tv_sec * kSecond + time.tv_nsec; };
    FileState state{{file.st_dev, file.st_ino, file.st_mode, getpid()}, {}};
    if (nanoseconds(now) - nanoseconds(file.st_ctim) > kTooFresh) {
        state.content = FileContent{file.st_size, nanoseconds(file.st_mtim), nanoseconds(file.st_ctim)};
    }
    return state;
}

bool Connection::Park()
{
    Release();
    if (m_keepsLock || IsReplaced()) {
        return false;
    }
    m_parked = m_access == Access::Write ? ReadState() : std::nullopt;
    if (m_parked && !m_parked->content) {
        sqlite3_db_release_memory(Handle());
    }
    return m_parked.has_value();
}

bool Connection::Resume()
{
    const auto now = ReadState();
    if (!now || now->identity != m_parked->identity || (m_parked->content && now->content != m_parked->content)) {
        return false;
    }
    m_inOrder = false;
    Inspect();
    if (!m_inOrder) {
        return false;
    }
    Hold();
    KeepMorePages();
    return true;
}

// Lets a small business's file stay in memory whole. A program that opens the file for one question gains nothing by it, so this is done at
// the first return.
void Connection::KeepMorePages()
{
    if (!m_keepsMore) {
        Run("PRAGMA cache_size=-8192"); // KiB, four times the engine's own measure; taken as pages are read
        m_keepsMore = true;
    }
}

void Connection::RefuseOtherPrograms(std::int32_t applicationId, std::int32_t formatNumber) const
{
    if (applicationId != 0 && applicationId != kApplicationId) {
        throw EngineFailure(SQLITE_NOTADB);
    }
    if (formatNumber > kFormatNumber) {
        throw EngineFailure(SQLITE_NOTADB, kNewer);
    }
}

// Most files were in order before the hold. Where the hold had to be waited for, somebody may have changed that.
void Connection::RefuseForeignFile()
{
    if (m_inOrder) {
        return RefuseNewerStructure();
    }
    const FileHeader header = ReadFileHeader(Handle());
    if (!header.complete) {
        throw EngineFailure(SQLITE_NOTADB);
    }
    if (FileSize(Handle()) < header.fileSize) {
        throw EngineFailure(SQLITE_CORRUPT);
    }
    RefuseOtherPrograms(header.applicationId, header.formatNumber);
    if (header.writeAheadLog) {
        RefuseOtherProgramsLog();
    }
    RefuseNewerStructure();
    if (header.writeAheadLog && m_access == Access::Write) {
        LeaveWriteAheadLog();
    }
}

// The first structure has no such table. Other failures of this question are left to whoever reads more of the file.
std::int64_t Connection::Structure()
{
    std::int64_t version = 1;
    try {
        SqliteStatement newest(Handle(), "SELECT MAX(version) FROM _Structure", &m_prepared);
        newest.ForEachRow([&] { version = newest.Int64At(0); });
    } catch (const Failure&) {
        return 1;
    }
    return version;
}

void Connection::RefuseNewerStructure()
{
    if (Structure() > kFileStructure) {
        LeaveLogAlone();
        throw EngineFailure(SQLITE_NOTADB, kNewer);
    }
}

// A log beside a file that is refused must still be there afterwards.
void Connection::LeaveLogAlone()
{
    sqlite3_db_config(Handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

// What marks a file as another program's may be in its log only, and must still be there afterwards.
void Connection::RefuseOtherProgramsLog()
{
    const auto number = [this](const char* pragma) { return SqliteStatement(Handle(), pragma).ReadRows()->Int32At(0); };
    try {
        RefuseOtherPrograms(number("PRAGMA application_id"), number("PRAGMA user_version"));
    } catch (const Failure&) {
        LeaveLogAlone();
        throw;
    }
}

// Turns the log off, which another tool may have chosen: with it, a hold keeps writers out but lets readers in.
void Connection::LeaveWriteAheadLog()
{
    Release();
    int code = SQLITE_BUSY;
    do { // here the engine does not wait by itself
        code = m_database.tryExec("PRAGMA journal_mode=DELETE");
    } while (code == SQLITE_BUSY && Wait());
    RaiseUnlessDone(Handle(), code);
    Run("BEGIN EXCLUSIVE"); // still the same opening, so within the same second
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
        m_patientUntil = std::chrono::steady_clock::now();
        if (m_whenHeld == WhenHeld::Wait) {
            m_patientUntil += kPatience;
        }
        Run("BEGIN EXCLUSIVE");
        if (IsReplaced()) {
            Release();
            throw EngineFailure(SQLITE_BUSY, kReplaced);
        }
    }
}

// The name of a replaced file leads to another one, so what is stored in it would be lost.
bool Connection::IsReplaced() const
{
    int moved = 0;
    return sqlite3_file_control(Handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0;
}

// Whether to try once more for a file in use.
bool Connection::Wait()
{
    m_inOrder = false;
    if (std::chrono::steady_clock::now() >= m_patientUntil || !waiting::GoOn()) {
        return false;
    }
    std::this_thread::sleep_for(kBetweenTries);
    return true;
}

namespace {

// Whether a commit failed while it gave the lock back: a writer's lock is first made a reader's, then given back.
bool IsOfUnlocking(int reason)
{
    return reason == SQLITE_IOERR_RDLOCK || reason == SQLITE_IOERR_UNLOCK;
}

} // namespace

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
        const int reason = sqlite3_extended_errcode(Handle());
        Release();
        if (IsOfUnlocking(reason)) {
            m_keepsLock = true;
            return; // the commit is done: the lock goes after the journal is gone
        }
        if (reason == SQLITE_IOERR_DIR_FSYNC) { // the commit is done here, too
            throw EngineFailure(SQLITE_IOERR, kNotYetSafe);
        }
        throw;
    }
}

namespace {

// A copy tells how far it is after so many pages: more and more of them where they are quick.
constexpr int kFirstPortion = 16;
constexpr int kMostPortion = 512;
constexpr auto kLongPortion = waiting::kSlice;

// Copies a portion. The next one is larger as long as the disk is quick.
int CopyPortion(sqlite3_backup* copy, int& portion)
{
    const auto begun = std::chrono::steady_clock::now();
    const int code = sqlite3_backup_step(copy, portion);
    const bool isLong = std::chrono::steady_clock::now() - begun > kLongPortion;
    portion = isLong ? std::max(portion / 2, 1) : std::min(portion * 2, kMostPortion);
    return code;
}

// A failure to write the copy is no failure of the database.
void RaiseOfTarget(int code)
{
    if (code == SQLITE_FULL) {
        throw Failure(failure::DiskFull);
    }
    if (code == SQLITE_IOERR_WRITE || code == SQLITE_IOERR_TRUNCATE || code == SQLITE_IOERR_FSYNC) {
        throw Failure(failure::DeviceIoError);
    }
}

void Copy(sqlite3* from, sqlite3* to, const std::function<bool(std::int32_t, std::int32_t)>& progress)
{
    sqlite3_backup* copy = sqlite3_backup_init(to, "main", from, "main");
    if (copy == nullptr) {
        throw EngineFailure(sqlite3_errcode(to), to);
    }
    int code = SQLITE_OK;
    int portion = kFirstPortion;
    while (code == SQLITE_OK) {
        code = CopyPortion(copy, portion);
        const int all = sqlite3_backup_pagecount(copy);
        if (code == SQLITE_OK && progress && !progress(all - sqlite3_backup_remaining(copy), all)) {
            code = SQLITE_INTERRUPT;
        }
    }
    sqlite3_backup_finish(copy);
    if (code == SQLITE_INTERRUPT) {
        throw EngineFailure(code, std::string("the copy was given up"));
    }
    if (code != SQLITE_DONE) {
        RaiseOfTarget(code);
        throw EngineFailure(code);
    }
}

} // namespace

// The engine refuses to copy in a transaction of the same connection, so the lock is kept without one.
void Connection::CopyTo(const std::string& path, const std::function<bool(std::int32_t, std::int32_t)>& progress)
{
    SQLite::Database copy = OpenFile(PlainPath(path), Access::Write);
    RaiseUnlessDone(copy.getHandle(), copy.tryExec("PRAGMA synchronous=OFF; PRAGMA journal_mode=OFF")); // nothing to lose in it yet
    Run("PRAGMA locking_mode=EXCLUSIVE");
    Release();
    try {
        Copy(Handle(), copy.getHandle(), progress);
    } catch (const Failure&) {
        Run("PRAGMA locking_mode=NORMAL");
        Hold();
        throw;
    }
    Run("PRAGMA locking_mode=NORMAL");
    Hold();
}

void Connection::Release() noexcept
{
    if (IsHeld()) {
        sqlite3_step(m_rollback.get()); // what this cannot undo now, the journal undoes when the file is next opened
        m_keepsLock = sqlite3_reset(m_rollback.get()) != SQLITE_OK;
    }
}

} // namespace ptk
