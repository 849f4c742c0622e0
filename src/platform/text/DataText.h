// Texts inside data files. In JSON and CSV, bytes that are no UTF-8 become U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace ptk {

// The text as a JSON string with its quotes. Control characters are escaped, including U+007F to U+009F.
[[nodiscard]] std::string JsonText(std::string_view text);

// The text, with an apostrophe before it where a spreadsheet would take it for a formula: it begins with = + - @, a tab or a carriage
// return. Not to be used for numbers.
[[nodiscard]] std::string NoFormula(std::string_view text);

// The text without the apostrophe that NoFormula gave it.
[[nodiscard]] std::string_view WithoutFormulaMark(std::string_view text);

// The text as a field of a file with this separator between the fields, in quotes where it needs them.
[[nodiscard]] std::string CsvField(std::string_view text, char separator);

// The text as NoFormula answers it, as a field of an RFC 4180 file, in quotes where it needs them.
[[nodiscard]] std::string CsvText(std::string_view text);

} // namespace ptk
