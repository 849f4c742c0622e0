#include "store/sqlite/FileHeader.h"

#include "store/sqlite/EngineFailure.h"

#include <algorithm>
#include <array>
#include <sqlite3.h>
#include <string_view>

namespace ptk {

namespace {

// Offsets as the file format documents them.
constexpr std::string_view kSignature("SQLite format 3\0", 16);
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kPageSize = 16; // two bytes
constexpr std::size_t kWriteVersion = 18;
constexpr std::size_t kChangeCounter = 24;
constexpr std::size_t kPageCount = 28;
constexpr std::size_t kUserVersion = 60;
constexpr std::size_t kApplication = 68;
constexpr std::size_t kPageCountValidFor = 92; // the change counter's value when the page count was written
constexpr unsigned char kWriteAheadLog = 2;

using Bytes = std::array<unsigned char, kHeaderSize>;

// Reads a big-endian number.
std::uint32_t NumberAt(const Bytes& bytes, std::size_t offset, std::size_t size = 4)
{
    std::uint32_t number = 0;
    for (std::size_t i = offset; i < offset + size; ++i) {
        number = number << 8 | bytes[i];
    }
    return number;
}

// The size in bytes that the header tells; 0 when it does not, as old writers leave it.
std::int64_t SizeByHeader(const Bytes& bytes)
{
    if (NumberAt(bytes, kChangeCounter) != NumberAt(bytes, kPageCountValidFor)) {
        return 0;
    }
    const std::uint32_t pageSize = NumberAt(bytes, kPageSize, 2);
    return std::int64_t{NumberAt(bytes, kPageCount)} * (pageSize == 1 ? 65536 : pageSize);
}

void RaiseWhenUnreadable(int resultCode)
{
    if (resultCode != SQLITE_OK) {
        throw EngineFailure(resultCode);
    }
}

sqlite3_file* FileOf(sqlite3* database)
{
    sqlite3_file* file = nullptr;
    RaiseUnlessDone(database, sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file)));
    return file;
}

} // namespace

FileHeader ReadFileHeader(sqlite3* database)
{
    sqlite3_file* file = FileOf(database);
    Bytes bytes{};
    const int code = file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), 0);
    if (code == SQLITE_IOERR_SHORT_READ) {
        return {};
    }
    RaiseWhenUnreadable(code);
    FileHeader header;
    header.complete = true;
    header.signature = std::equal(kSignature.begin(), kSignature.end(), bytes.begin());
    header.writeAheadLog = bytes[kWriteVersion] == kWriteAheadLog;
    header.applicationId = static_cast<std::int32_t>(NumberAt(bytes, kApplication));
    header.formatNumber = static_cast<std::int32_t>(NumberAt(bytes, kUserVersion));
    header.fileSize = SizeByHeader(bytes);
    return header;
}

std::int64_t FileSize(sqlite3* database)
{
    sqlite3_file* file = FileOf(database);
    sqlite3_int64 size = 0;
    RaiseWhenUnreadable(file->pMethods->xFileSize(file, &size));
    return size;
}

} // namespace ptk
