// Makes a line of a CSV file, field by field.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

class CsvLine
{
public:
    // Adds a text, in quotes where it needs them, and so that no spreadsheet takes it for a formula: see CsvText.
    CsvLine& Text(std::string_view text);

    // Adds a field unchanged: a figure, a moment, a name that the program gives.
    CsvLine& Plain(std::string_view text);

    CsvLine& Truth(bool isTrue) { return Plain(isTrue ? "true" : "false"); }
    CsvLine& Number(std::int64_t number) { return Plain(std::to_string(number)); }
    CsvLine& Number(const std::optional<std::int64_t>& number) { return Plain(number ? std::to_string(*number) : ""); } // empty for none
    CsvLine& Empty(int fields);

    // The whole line with its line end.
    [[nodiscard]] std::string Done() const { return m_line + "\r\n"; }

private:
    std::string m_line;
    bool m_begun = false;
};

} // namespace ptk
