#include "store/engine/FileHeader.h"

#include "store/engine/EngineFailure.h"

#include <array>
#include <sqlite3.h>

namespace ptk {

namespace {

// Offsets as the file format documents them.
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kWriteVersion = 18;
constexpr std::size_t kUserVersion = 60;
constexpr unsigned char kWriteAheadLog = 2;

using Bytes = std::array<unsigned char, kHeaderSize>;

// Big-endian.
std::int32_t NumberAt(const Bytes& bytes, std::size_t offset)
{
    std::uint32_t number = 0;
    for (std::size_t i = offset; i < offset + 4; ++i) {
        number = number << 8 | bytes[i];
    }
    return static_cast<std::int32_t>(number);
}

} // namespace

FileHeader ReadFileHeader(sqlite3* database)
{
    sqlite3_file* file = nullptr;
    RaiseUnlessDone(database, sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file)));
    Bytes bytes{};
    const int code = file->pMethods->xRead(file, bytes.data(), static_cast<int>(bytes.size()), 0);
    if (code == SQLITE_IOERR_SHORT_READ) {
        return {};
    }
    if (code != SQLITE_OK) {
        throw EngineFailure(code, "the file cannot be read");
    }
    return {true, bytes[kWriteVersion] == kWriteAheadLog, NumberAt(bytes, kUserVersion)};
}

} // namespace ptk
