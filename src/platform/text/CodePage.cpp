#include "platform/text/CodePage.h"

#include "platform/Failure.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <fmt/format.h>
#include <iconv.h>
#include <iterator>
#include <memory>
#include <optional>

namespace ptk {

namespace {

constexpr int kCodePages[] = {437, 850, 852, 855, 857, 866, 874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};
constexpr std::string_view kUnknown = "\xEF\xBF\xBD"; // U+FFFD

// What the bytes 0x80 to 0x9F mean in the code page 1252; five mean nothing. Below and above them each byte is the character of its number.
constexpr char32_t kWestern[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
                                 0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                                 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
constexpr char32_t kFirstOfWestern = 0x80;
constexpr char32_t kBehindWestern = 0xA0;
constexpr char32_t kBehindBytes = 0x100;

std::optional<char32_t> WesternByte(char32_t character)
{
    if (character < kFirstOfWestern || (character >= kBehindWestern && character < kBehindBytes)) {
        return character;
    }
    const auto* found = std::find(std::begin(kWestern), std::end(kWestern), character);
    return found == std::end(kWestern) ? std::nullopt : std::optional(kFirstOfWestern + static_cast<char32_t>(found - kWestern));
}

struct CloseConverter
{
    void operator()(void* converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<void, CloseConverter>;

Converter OpenConverter(int codePage)
{
    // What iconv_open answers on failure is no pointer to anything.
    void* const opened = IsKnownCodePage(codePage) ? iconv_open("UTF-8", fmt::format("CP{}", codePage).c_str()) : nullptr;
    if (opened == nullptr || opened == iconv_t(-1)) { // NOLINT(performance-no-int-to-ptr)
        throw Failure(failure::InvalidProcedureCall, "PTK", fmt::format("the code page {} is not known to this system", codePage));
    }
    return Converter(opened);
}

// Converts what fits into a few thousand bytes; false at a byte that means nothing. With nothing left, it writes a letter that the
// converter held back because an accent behind it could have changed it.
bool ConvertSome(void* converter, char*& in, std::size_t& left, std::string& converted)
{
    char buffer[4096];
    char* out = buffer;
    std::size_t room = sizeof buffer;
    const bool done = iconv(converter, left > 0 ? &in : nullptr, &left, &out, &room) != std::size_t(-1) || errno == E2BIG;
    converted.append(buffer, out);
    return done;
}

} // namespace

bool IsKnownCodePage(int codePage)
{
    return std::find(std::begin(kCodePages), std::end(kCodePages), codePage) != std::end(kCodePages);
}

std::string FromCodePage(std::string_view text, int codePage)
{
    const Converter converter = OpenConverter(codePage);
    std::string source(text);
    std::string converted;
    char* in = source.data();
    std::size_t left = source.size();
    while (left > 0) {
        if (!ConvertSome(converter.get(), in, left, converted)) {
            converted += kUnknown;
            ++in;
            --left;
        }
    }
    static_cast<void>(ConvertSome(converter.get(), in, left, converted));
    return converted;
}

WesternText ToWestern(std::string_view text)
{
    WesternText western;
    while (!text.empty()) {
        const auto byte = WesternByte(TakeCharacter(text));
        western.lost += byte ? 0 : 1;
        western.bytes += static_cast<char>(byte.value_or('?'));
    }
    return western;
}

bool IsUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

} // namespace ptk
