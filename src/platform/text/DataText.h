// Texts inside data files.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// In JSON and CSV, bytes that are no UTF-8 become U+FFFD.

// A JSON string with its quotes. Control characters are escaped, delete and those behind it included.
[[nodiscard]] std::string JsonText(std::string_view text);

// What a spreadsheet would take for a formula (it begins with = + - @, a tab or a carriage return) gets an apostrophe before it; numbers
// are not to be passed through here.
[[nodiscard]] std::string NoFormula(std::string_view text);

// The text without the apostrophe that NoFormula gave it.
[[nodiscard]] std::string_view WithoutFormulaMark(std::string_view text);

// A field of a file whose fields stand between such separators, in quotes where it needs them.
[[nodiscard]] std::string CsvField(std::string_view text, char separator);

// What NoFormula answers, as a field of an RFC 4180 file, in quotes where it needs them.
[[nodiscard]] std::string CsvText(std::string_view text);

} // namespace ptk
