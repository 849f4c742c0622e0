// Questions about single characters for the readers of dates, numbers and words: ASCII only, whatever the process locale says.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace ptk {

[[nodiscard]] constexpr bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}
[[nodiscard]] constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
[[nodiscard]] constexpr bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
[[nodiscard]] constexpr char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The text without the blanks around it.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

// The text with a question mark for each control character, such as the end of a line.
[[nodiscard]] inline std::string OneLine(std::string text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return text;
}

} // namespace ptk
