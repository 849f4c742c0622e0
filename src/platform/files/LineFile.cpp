#include "platform/files/LineFile.h"

#include "platform/Failure.h"
#include "platform/files/ProgramFolder.h"
#include "platform/files/SystemFile.h"

#include <array>
#include <fcntl.h>
#include <memory>
#include <utility>

namespace ptk::linefile {

namespace {

constexpr std::int32_t kMostFiles = 511;
constexpr std::size_t kBufferSize = 16384;

struct OpenFile
{
    SystemFile file;
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

// The flags of open(2). Each text goes to what is the end at that moment, so that two programs that write to the same file lose nothing.
int Flags(Mode mode)
{
    switch (mode) {
    case Mode::Write:
        return O_WRONLY | O_CREAT | O_APPEND | O_TRUNC;
    case Mode::Append:
        return O_WRONLY | O_CREAT | O_APPEND;
    default:
        return O_RDONLY;
    }
}

// Puts the next character in `next` without taking it; false at the end of the file.
bool Peek(OpenFile& file, char& next)
{
    if (file.at == file.buffer.size() && !file.ended) {
        file.at = 0;
        file.buffer.clear();
        std::string ahead(kBufferSize, '\0');
        ahead.resize(file.file.Read(ahead.data(), ahead.size()));
        file.ended = ahead.empty();
        file.buffer = std::move(ahead);
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

// Skips the comma or the line end behind an item.
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

// Takes an item in quotes. Text between the closing quote and the delimiter belongs to no item and is skipped.
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
    auto file = std::make_unique<OpenFile>();
    file->file = OpenRegularFile(NativePath(path), Flags(mode));
    files[static_cast<std::size_t>(number)] = std::move(file);
}

void Close(std::int32_t number)
{
    SystemFile file = std::move(At(number).file);
    files[static_cast<std::size_t>(number)].reset();
    file.Close();
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
    At(number).file.Write(text);
}

} // namespace ptk::linefile
