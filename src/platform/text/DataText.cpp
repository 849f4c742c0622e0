#include "platform/text/DataText.h"

#include "platform/text/Utf8.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace ptk {

namespace {

constexpr std::string_view kReplacementText = "\xEF\xBF\xBD"; // U+FFFD

bool IsPlain(char c)
{
    return c >= ' ' && c < '\x7F' && c != '"' && c != '\\';
}

// Calls `take` for each character; plain ones that stand together come as one text, each byte that is no UTF-8 as U+FFFD.
template <typename Take>
void ForEachCharacter(std::string_view text, Take take)
{
    while (!text.empty()) {
        const auto plain = static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsPlain) - text.begin());
        const std::size_t length = plain > 0 ? plain : Utf8Length(text);
        take(length == 0 ? kReplacementText : text.substr(0, length));
        text.remove_prefix(length == 0 ? 1 : length);
    }
}

// The number of a control character (C0, delete and C1), which a terminal might obey; nothing for others.
std::optional<unsigned> ControlCode(std::string_view character)
{
    const unsigned first = ByteAt(character, 0);
    if (character.size() == 1 && (first < 0x20 || first == 0x7F)) {
        return first;
    }
    if (character.size() == 2 && first == 0xC2 && ByteAt(character, 1) < 0xA0) {
        return ByteAt(character, 1);
    }
    return std::nullopt;
}

bool BeginsFormula(std::string_view text)
{
    return text.find_first_of("=+-@\t\r") == 0;
}

} // namespace

std::string JsonText(std::string_view text)
{
    std::string json = "\"";
    json.reserve(text.size() + 2);
    ForEachCharacter(text, [&](std::string_view character) {
        if (const auto code = ControlCode(character)) {
            json += fmt::format("\\u{:04x}", *code);
            return;
        }
        if (character == "\"" || character == "\\") {
            json += '\\';
        }
        json += character;
    });
    return json + '"';
}

std::string NoFormula(std::string_view text)
{
    return std::string(BeginsFormula(text) ? "'" : "").append(text);
}

std::string_view WithoutFormulaMark(std::string_view text)
{
    return text.starts_with('\'') && BeginsFormula(text.substr(1)) ? text.substr(1) : text;
}

std::string CsvField(std::string_view text, char separator)
{
    std::string field;
    ForEachCharacter(text, [&](std::string_view character) {
        if (character == "\"") {
            field += '"';
        }
        field += character;
    });
    const char special[] = {separator, '"', '\r', '\n'};
    return field.find_first_of(special, 0, sizeof special) == std::string::npos ? field : '"' + field + '"';
}

std::string CsvText(std::string_view text)
{
    return CsvField(NoFormula(text), ',');
}

} // namespace ptk
