#include "console/Console.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr bool Continues(char c)
{
    return (c & 0xC0) == 0x80;
}

constexpr bool IsPlain(char c)
{
    return (c >= ' ' && c < '\x7F') || c == '\n' || c == '\t';
}

// The length in bytes of the UTF-8 character at the beginning; 1 for a byte that begins none.
std::size_t CharacterLength(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t expected = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 1;
    std::size_t length = 1;
    while (length < expected && length < text.size() && Continues(text[length])) {
        ++length;
    }
    return length == expected ? length : 1;
}

// Whether a terminal may obey the character instead of showing it: C0 but tab and line feed, DEL, C1 as UTF-8 or as a stray byte.
bool IsControl(std::string_view character)
{
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(character[at]); };
    if (character.size() == 1) {
        return (byte(0) < 0x20 && character != "\t" && character != "\n") || (byte(0) >= 0x7F && byte(0) < 0xA0);
    }
    return character.size() == 2 && byte(0) == 0xC2 && byte(1) < 0xA0;
}

} // namespace

void Complain(std::ostream& err, const Failure& failure)
{
    std::string text = failure.Description();
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    err << "ptk-console: ";
    if (failure.Number() != 0) {
        err << failure.Number() << ": ";
    }
    err << TerminalText(text) << '\n';
}

int RefuseUsage(std::ostream& err, const std::string& text)
{
    Complain(err, Failure(0, "PTK", text));
    err << "Try: ptk-console --help\n";
    return status::WrongUsage;
}

std::string TerminalText(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto plain = std::find_if_not(text.begin(), text.end(), IsPlain);
        result.append(text.begin(), plain);
        text.remove_prefix(static_cast<std::size_t>(plain - text.begin()));
        if (text.empty()) {
            break;
        }
        const std::size_t length = CharacterLength(text);
        if (IsControl(text.substr(0, length))) {
            result += text.starts_with("\r\n") ? "" : "?";
        } else {
            result += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    return result;
}

} // namespace ptk
