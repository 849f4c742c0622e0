// Texts inside data files.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// In both, bytes that are no UTF-8 become U+FFFD.

// A JSON string with its quotes. Control characters are escaped, delete and those behind it included.
[[nodiscard]] std::string JsonText(std::string_view text);

// A field of an RFC 4180 file, in quotes where it needs them. What a spreadsheet would take for a formula (it begins with = + - @ or a tab)
// gets an apostrophe before it; numbers are not to be passed through here.
[[nodiscard]] std::string CsvText(std::string_view text);

} // namespace ptk
