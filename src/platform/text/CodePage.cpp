#include "platform/text/CodePage.h"

#include "platform/Failure.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <fmt/format.h>
#include <iconv.h>
#include <iterator>
#include <memory>

namespace ptk {

namespace {

constexpr int kCodePages[] = {437, 850, 852, 855, 857, 866, 874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};
constexpr std::string_view kUnknown = "\xEF\xBF\xBD"; // U+FFFD

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

// What of the source fits into a few thousand bytes; nothing left of it flushes a letter that an accent behind it would have changed. False
// at a byte that means nothing.
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
