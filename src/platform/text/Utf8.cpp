#include "platform/text/Utf8.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Whether the second byte fits behind the first: no overlong forms, no surrogates, nothing beyond U+10FFFF.
bool FitsBehind(unsigned first, unsigned second)
{
    switch (first) {
    case 0xE0:
        return second >= 0xA0 && second <= 0xBF;
    case 0xED:
        return second >= 0x80 && second <= 0x9F;
    case 0xF0:
        return second >= 0x90 && second <= 0xBF;
    case 0xF4:
        return second >= 0x80 && second <= 0x8F;
    default:
        return second >= 0x80 && second <= 0xBF;
    }
}

} // namespace

std::size_t Utf8Length(std::string_view text)
{
    const unsigned first = ByteAt(text, 0);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (length > text.size() || (length > 1 && !FitsBehind(first, ByteAt(text, 1)))) {
        return 0;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if ((ByteAt(text, i) & 0xC0U) != 0x80U) {
            return 0;
        }
    }
    return length;
}

char32_t TakeCharacter(std::string_view& text)
{
    const std::size_t length = Utf8Length(text);
    char32_t character = kReplacement;
    if (length > 0) {
        constexpr unsigned kFirstBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
        character = ByteAt(text, 0) & kFirstBits[length];
        for (std::size_t i = 1; i < length; ++i) {
            character = (character << 6U) | (ByteAt(text, i) & 0x3FU);
        }
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
    return character;
}

} // namespace ptk
