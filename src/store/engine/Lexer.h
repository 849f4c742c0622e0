// Splits SQL text into tokens; joined again, they are the same statement.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace ptk {

enum class TokenKind : std::uint8_t
{
    Blank,  // white space and comments
    Word,   // keywords and plain names
    Quoted, // names in brackets, double quotes or back quotes
    Text,   // '...'
    Number,
    Date, // #...#, or the rest of the statement when it is never closed
    Sign  // any other single character
};

struct Token
{
    TokenKind kind;
    std::string_view text;
};

// The tokens refer to the statement's own characters.
[[nodiscard]] std::vector<Token> SplitTokens(std::string_view statement);

} // namespace ptk
