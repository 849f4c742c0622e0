// Texts of older programs, in the code pages that Windows knows by numbers.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

inline constexpr int kWesternCodePage = 1252;

// Those of the languages whose texts can be turned into UTF-8.
[[nodiscard]] bool IsKnownCodePage(int codePage);

// A byte that means nothing in the code page becomes U+FFFD. Raises 5 for a code page that is not known to this system.
[[nodiscard]] std::string FromCodePage(std::string_view text, int codePage);

// Whether all of it is well-formed UTF-8.
[[nodiscard]] bool IsUtf8(std::string_view text);

} // namespace ptk
