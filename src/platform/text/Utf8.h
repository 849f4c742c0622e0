// Reads the characters of UTF-8 text one by one.
#pragma once

#include <cstddef>
#include <string_view>

namespace ptk {

// The byte at a position, 0 to 255. REQUIRES: position is within the text.
[[nodiscard]] inline unsigned ByteAt(std::string_view text, std::size_t position)
{
    return static_cast<unsigned char>(text[position]);
}

// The length in bytes of the character at the beginning; 0 where the text begins with none. REQUIRES: text is not empty.
[[nodiscard]] std::size_t Utf8Length(std::string_view text);

// Takes the first character off the text; U+FFFD for a byte that begins none. REQUIRES: text is not empty.
[[nodiscard]] char32_t TakeCharacter(std::string_view& text);

} // namespace ptk
