#include "jetreader/JetText.h"

#include <algorithm>
#include <cstdint>
#include <iconv.h>
#include <iterator>
#include <vector>

namespace jet {

namespace {

constexpr int kWestern = 1252;
constexpr char32_t kReplacement = 0xFFFD;

struct CodePage
{
    int number;
    const char* name;
};

constexpr CodePage kCodePages[] = {
    {437, "IBM437"},  {850, "IBM850"},  {852, "IBM852"},  {855, "IBM855"},  {857, "IBM857"},  {866, "IBM866"},  {874, "CP874"},
    {932, "CP932"},   {936, "CP936"},   {949, "UHC"},     {950, "BIG5"},    {1250, "CP1250"}, {1251, "CP1251"}, {1252, "CP1252"},
    {1253, "CP1253"}, {1254, "CP1254"}, {1255, "CP1255"}, {1256, "CP1256"}, {1257, "CP1257"}, {1258, "CP1258"},
};

void AppendUtf8(std::string& out, char32_t point)
{
    const auto add = [&](char32_t bits) { out += static_cast<char>(bits); };
    if (point < 0x80) {
        return add(point);
    }
    if (point < 0x800) {
        add(0xC0 | (point >> 6));
    } else if (point < 0x10000) {
        add(0xE0 | (point >> 12));
        add(0x80 | ((point >> 6) & 0x3F));
    } else {
        add(0xF0 | (point >> 18));
        add(0x80 | ((point >> 12) & 0x3F));
        add(0x80 | ((point >> 6) & 0x3F));
    }
    add(0x80 | (point & 0x3F));
}

using Units = std::vector<std::uint16_t>;

// Reads a shortened text: one byte a character until a zero byte, then two, and so on in turns.
Units Lengthened(std::span<const unsigned char> bytes)
{
    Units units;
    bool shortened = true;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == 0) {
            shortened = !shortened;
        } else if (shortened) {
            units.push_back(bytes[i]);
        } else if (i + 1 < bytes.size()) {
            units.push_back(static_cast<std::uint16_t>(bytes[i] | (bytes[i + 1] << 8)));
            ++i;
        }
    }
    return units;
}

Units UnitsOf(std::span<const unsigned char> bytes)
{
    if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) {
        return Lengthened(bytes.subspan(2));
    }
    Units units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        units.push_back(static_cast<std::uint16_t>(bytes[i] | (bytes[i + 1] << 8)));
    }
    return units;
}

bool IsHigh(std::uint16_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLow(std::uint16_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

DecodedText FromUtf16(std::span<const unsigned char> bytes)
{
    const Units units = UnitsOf(bytes);
    DecodedText text;
    for (std::size_t i = 0; i < units.size(); ++i) {
        const std::uint16_t unit = units[i];
        if (IsHigh(unit) && i + 1 < units.size() && IsLow(units[i + 1])) {
            AppendUtf8(text.utf8, 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) + (units[i + 1] - 0xDC00U));
            ++i;
        } else if (unit == 0 || IsHigh(unit) || IsLow(unit)) {
            AppendUtf8(text.utf8, kReplacement);
            text.exact = false;
        } else {
            AppendUtf8(text.utf8, unit);
        }
    }
    return text;
}

} // namespace

const char* NameOfCodePage(int codePage)
{
    const auto* found =
        std::find_if(std::begin(kCodePages), std::end(kCodePages), [&](const CodePage& page) { return page.number == codePage; });
    return found == std::end(kCodePages) ? nullptr : found->name;
}

TextDecoder::TextDecoder(int codePage)
{
    if (codePage != kUtf16) {
        const char* const name = NameOfCodePage(codePage);
        m_converter = iconv_open("UTF-8", name != nullptr ? name : NameOfCodePage(kWestern));
    }
}

TextDecoder::~TextDecoder()
{
    if (m_converter != nullptr) {
        iconv_close(m_converter);
    }
}

DecodedText TextDecoder::Decode(std::span<const unsigned char> bytes) const
{
    return m_converter == nullptr ? FromUtf16(bytes) : FromCodePage(bytes);
}

DecodedText TextDecoder::FromCodePage(std::span<const unsigned char> bytes) const
{
    constexpr std::size_t kWidest = 4; // bytes of UTF-8 for one byte of a code page
    DecodedText text;
    std::vector<char> source(bytes.begin(), bytes.end());
    std::string buffer(source.size() * kWidest, '\0');
    char* in = source.data();
    char* out = buffer.data();
    std::size_t left = source.size();
    std::size_t room = buffer.size();
    iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
    while (left > 0) {
        iconv(m_converter, &in, &left, &out, &room);
        if (left > 0 && room > 0) { // a byte that means nothing in this code page
            ++in;
            --left;
            *out++ = '?';
            --room;
            text.exact = false;
        }
    }
    iconv(m_converter, nullptr, nullptr, &out, &room); // writes a letter that an accent behind it would have changed
    text.utf8.assign(buffer.data(), out);
    if (text.utf8.find('\0') != std::string::npos) {
        std::replace(text.utf8.begin(), text.utf8.end(), '\0', '?');
        text.exact = false;
    }
    return text;
}

} // namespace jet
