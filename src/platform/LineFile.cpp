#include "platform/LineFile.h"

#include "platform/Failure.h"
#include "platform/ProgramFolder.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace ptk::linefile {

namespace {

constexpr std::int32_t kMostFiles = 511;
constexpr std::size_t kBufferSize = 16384;

struct OpenFile
{
    int descriptor = -1;
    std::string buffer; // what was read ahead
    std::size_t at = 0;
    bool ended = false; // the system has no more to read
};

std::array<std::unique_ptr<OpenFile>, kMostFiles + 1> files; // by number; 0 is never used

OpenFile& At(std::int32_t number)
{
    if (number < 1 || number > kMostFiles || !files[static_cast<std::size_t>(number)]) {
        throw Failure(failure::BadFileNumber);
    }
    return *files[static_cast<std::size_t>(number)];
}

int Flags(Mode mode)
{
    switch (mode) {
    case Mode::Write:
        return O_WRONLY | O_CREAT | O_TRUNC;
    case Mode::Append:
        return O_WRONLY | O_CREAT | O_APPEND;
    default:
        return O_RDONLY;
    }
}

// A missing folder is told from a missing file by looking at what the path stands in.
Failure OpenFailure(int error, const std::filesystem::path& path)
{
    std::error_code ignored;
    const auto folder = path.parent_path();
    if (error == ENOENT && !folder.empty() && !std::filesystem::is_directory(folder, ignored)) {
        const Failure missing(failure::PathNotFound);
        return {missing.Number(), missing.Source(), missing.Description(), error};
    }
    return Failure::FromErrno(error);
}

// One more character to look at without taking it; false at the end of the file.
bool Peek(OpenFile& file, char& next)
{
    if (file.at == file.buffer.size() && !file.ended) {
        file.buffer.resize(kBufferSize);
        ssize_t count = -1;
        do {
            count = ::read(file.descriptor, file.buffer.data(), kBufferSize);
        } while (count < 0 && errno == EINTR);
        file.buffer.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        file.at = 0;
        if (count < 0) {
            throw Failure::FromErrno(errno);
        }
        file.ended = count == 0;
    }
    if (file.at == file.buffer.size()) {
        return false;
    }
    next = file.buffer[file.at];
    return true;
}

bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

void SkipBlanks(OpenFile& file)
{
    char c = '\0';
    while (Peek(file, c) && (c == ' ' || c == '\t')) {
        ++file.at;
    }
}

// The comma or the line end after an item.
void SkipDelimiter(OpenFile& file)
{
    char c = '\0';
    if (!Peek(file, c) || (c != ',' && !IsLineEnd(c))) {
        return;
    }
    ++file.at;
    char next = '\0';
    if (c == '\r' && Peek(file, next) && next == '\n') {
        ++file.at;
    }
}

std::string TakePlain(OpenFile& file)
{
    std::string item;
    char c = '\0';
    while (Peek(file, c) && c != ',' && !IsLineEnd(c)) {
        item += c;
        ++file.at;
    }
    return item;
}

// What stands between the closing quote and the delimiter belongs to no item and is passed over.
std::string TakeQuoted(OpenFile& file)
{
    std::string item;
    char c = '\0';
    ++file.at;
    while (Peek(file, c) && c != '"') {
        item += c;
        ++file.at;
    }
    if (Peek(file, c)) {
        ++file.at;
    }
    TakePlain(file);
    return item;
}

} // namespace

std::int32_t FreeNumber()
{
    for (std::int32_t number = 1; number <= kMostFiles; ++number) {
        if (!files[static_cast<std::size_t>(number)]) {
            return number;
        }
    }
    return 0;
}

void Open(std::int32_t number, const std::string& path, Mode mode)
{
    if (number < 1 || number > kMostFiles || path.empty()) {
        throw Failure(failure::BadFileNumber);
    }
    if (files[static_cast<std::size_t>(number)]) {
        throw Failure(failure::FileAlreadyOpen);
    }
    const std::filesystem::path native = NativePath(path);
    auto file = std::make_unique<OpenFile>();
    file->descriptor = ::open(native.c_str(), Flags(mode) | O_CLOEXEC, 0644);
    if (file->descriptor < 0) {
        throw OpenFailure(errno, native);
    }
    struct stat status
    {
    };
    if (::fstat(file->descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        ::close(file->descriptor);
        throw Failure(failure::PathFileAccess);
    }
    files[static_cast<std::size_t>(number)] = std::move(file);
}

void Close(std::int32_t number)
{
    const int descriptor = At(number).descriptor;
    files[static_cast<std::size_t>(number)].reset();
    if (::close(descriptor) != 0 && errno != EINTR) {
        throw Failure::FromErrno(errno);
    }
}

bool AtEnd(std::int32_t number)
{
    char c = '\0';
    return !Peek(At(number), c);
}

std::string ReadItem(std::int32_t number)
{
    OpenFile& file = At(number);
    char c = '\0';
    if (!Peek(file, c)) {
        throw Failure(failure::InputPastEnd);
    }
    SkipBlanks(file);
    std::string item = Peek(file, c) && c == '"' ? TakeQuoted(file) : TakePlain(file);
    SkipDelimiter(file);
    return item;
}

void Write(std::int32_t number, std::string_view text)
{
    const int descriptor = At(number).descriptor;
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR) {
            throw Failure::FromErrno(errno);
        }
        if (count > 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        }
    }
}

} // namespace ptk::linefile
