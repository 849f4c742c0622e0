// Converts texts of older programs, in the code pages that Windows knows by numbers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ptk {

inline constexpr int kWesternCodePage = 1252;

// Whether the program turns texts of this code page into UTF-8.
[[nodiscard]] bool IsKnownCodePage(int codePage);

// Turns a text into UTF-8; a byte that means nothing in the code page becomes U+FFFD. Raises 5 for a code page that this system lacks.
[[nodiscard]] std::string FromCodePage(std::string_view text, int codePage);

struct WesternText
{
    std::string bytes;
    std::size_t lost = 0; // characters that the code page lacks, each of them a question mark
};

// Turns UTF-8 text into code page 1252. A byte that is no UTF-8 counts as lost, too.
[[nodiscard]] WesternText ToWestern(std::string_view text);

// Whether all of it is well-formed UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view text);

} // namespace ptk
