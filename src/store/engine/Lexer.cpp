#include "store/engine/Lexer.h"

#include "platform/text/Characters.h"

#include <algorithm>

namespace ptk {

namespace {

bool IsWhiteSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

bool IsWordStart(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

bool IsWordPart(char c)
{
    return IsWordStart(c) || IsDigit(c) || c == '$';
}

// The length up to and including `end`, or of the whole rest where it is not there.
std::size_t LengthThrough(std::string_view rest, std::string_view end, std::size_t from)
{
    const std::size_t found = rest.find(end, from);
    return found == std::string_view::npos ? rest.size() : found + end.size();
}

// The length of a quoted token. A doubled quote inside stands for one and does not end it.
std::size_t QuotedLength(std::string_view rest)
{
    const char quote = rest.front();
    std::size_t length = LengthThrough(rest, {&quote, 1}, 1);
    while (length < rest.size() && rest[length] == quote) {
        length = LengthThrough(rest, {&quote, 1}, length + 1);
    }
    return length;
}

template <typename Predicate>
std::size_t LengthWhile(std::string_view rest, Predicate belongs)
{
    return static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), belongs) - rest.begin());
}

// The length of a comment or of white space; 0 for anything else.
std::size_t BlankLength(std::string_view rest)
{
    if (rest.starts_with("--")) {
        return LengthThrough(rest, "\n", 2);
    }
    if (rest.starts_with("/*")) {
        return LengthThrough(rest, "*/", 2);
    }
    return LengthWhile(rest, IsWhiteSpace);
}

Token NextToken(std::string_view rest)
{
    if (const std::size_t blank = BlankLength(rest); blank > 0) {
        return {TokenKind::Blank, rest.substr(0, blank)};
    }
    const char first = rest.front();
    if (IsWordStart(first)) {
        return {TokenKind::Word, rest.substr(0, LengthWhile(rest, IsWordPart))};
    }
    if (IsDigit(first)) {
        return {TokenKind::Number, rest.substr(0, LengthWhile(rest, IsWordPart))};
    }
    switch (first) {
    case '[':
        return {TokenKind::Quoted, rest.substr(0, LengthThrough(rest, "]", 1))};
    case '"':
    case '`':
        return {TokenKind::Quoted, rest.substr(0, QuotedLength(rest))};
    case '\'':
        return {TokenKind::Text, rest.substr(0, QuotedLength(rest))};
    case '#':
        return {TokenKind::Date, rest.substr(0, LengthThrough(rest, "#", 1))};
    default:
        return {TokenKind::Sign, rest.substr(0, 1)};
    }
}

} // namespace

std::vector<Token> SplitTokens(std::string_view statement)
{
    std::vector<Token> tokens;
    tokens.reserve(statement.size() / 4);
    while (!statement.empty()) {
        tokens.push_back(NextToken(statement));
        statement.remove_prefix(tokens.back().text.size());
    }
    return tokens;
}

} // namespace ptk
