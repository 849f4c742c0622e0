#include "office/sheet/SheetFile.h"

#include "platform/Failure.h"
#include "platform/files/SystemFile.h"
#include "platform/text/CodePage.h"
#include "platform/text/Utf8.h"

#include <fcntl.h>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";           // the byte order mark of UTF-8
constexpr std::size_t kLargestFile = std::size_t{256} << 20; // bytes
constexpr std::size_t kLongestShown = 40;                    // characters of a value or heading in a reason

constexpr std::int64_t kAskedEvery = 1000;

constexpr auto kCancelled = "it was cancelled";
constexpr auto kTooLarge = "the file is larger than 256 MB";
constexpr auto kBrokenUtf8 = "the file begins with the mark of UTF-8 and is no UTF-8";
constexpr auto kNoHeading = "the file has no heading line";

std::string ReadBytes(const std::string& path)
{
    SystemFile file = OpenRegularFile(path, O_RDONLY);
    std::string bytes;
    char buffer[1 << 16];
    while (const std::size_t count = file.Read(buffer, sizeof buffer)) {
        if (bytes.size() + count > kLargestFile) {
            throw Failure(0, "PTK", kTooLarge);
        }
        bytes.append(buffer, count);
    }
    return bytes;
}

} // namespace

void AskWhetherToGoOn(const GoesOn& goesOn, std::int64_t done)
{
    if (done % kAskedEvery == 0 && goesOn && !goesOn()) {
        throw Failure(0, "PTK", kCancelled);
    }
}

std::string ReadSheet(const std::string& file, std::optional<int> codePage)
{
    std::string text = ReadBytes(file);
    const bool marked = text.starts_with(kMark);
    text.erase(0, marked ? kMark.size() : 0);
    RefuseStrangeLines(text);
    if (IsUtf8(text)) {
        return text;
    }
    if (marked) {
        throw Failure(0, "PTK", kBrokenUtf8);
    }
    return FromCodePage(text, codePage.value_or(kWesternCodePage));
}

SheetReader::SheetReader(std::string_view text) : m_reader(text, SeparatorOf(text))
{
    if (!Next()) {
        throw Failure(0, "PTK", kNoHeading);
    }
}

bool SheetReader::Next()
{
    while (m_reader.Next(m_record)) {
        if (!m_record.IsBlank()) {
            return true;
        }
    }
    return false;
}

std::string Shortened(std::string_view text)
{
    std::string_view left = text;
    for (std::size_t i = 0; i < kLongestShown && !left.empty(); ++i) {
        static_cast<void>(TakeCharacter(left));
    }
    return fmt::format("{}{}", text.substr(0, text.size() - left.size()), left.empty() ? "" : "...");
}

std::string ShownCell(std::string_view value)
{
    return '"' + Shortened(value) + '"';
}

} // namespace ptk
