#include "store/postgres/ServerText.h"

#include "platform/text/Characters.h"
#include "platform/text/Text.h"
#include "store/engine/Lexer.h"

#include <algorithm>

namespace ptk {

namespace {

bool IsColon(const std::vector<Token>& tokens, std::size_t at)
{
    return at < tokens.size() && tokens[at].kind == TokenKind::Sign && tokens[at].text == ":";
}

// "a::text" is a conversion, not a parameter.
bool IsParameter(const std::vector<Token>& tokens, std::size_t at)
{
    return IsColon(tokens, at) && at + 1 < tokens.size() && tokens[at + 1].kind == TokenKind::Word && (at == 0 || !IsColon(tokens, at - 1));
}

std::string NumberOf(std::string_view name, std::vector<std::string>& parameters)
{
    auto found = std::find(parameters.begin(), parameters.end(), name);
    if (found == parameters.end()) {
        found = parameters.emplace(parameters.end(), name);
    }
    return '$' + std::to_string(found - parameters.begin() + 1);
}

std::string SmallName(std::string_view quoted)
{
    return '"' + LowerCase(quoted.substr(1, quoted.size() - 2)) + '"';
}

// Whether the name of a collation comes here: these are the server's own, and named as it does.
bool IsBehindCollate(const std::vector<Token>& tokens, std::size_t at)
{
    while (at > 0 && tokens[at - 1].kind == TokenKind::Blank) {
        --at;
    }
    return at > 0 && LowerCase(tokens[at - 1].text) == "collate";
}

bool IsNameOfOurs(const std::vector<Token>& tokens, std::size_t at)
{
    return tokens[at].kind == TokenKind::Quoted && tokens[at].text.size() >= 2 && !IsBehindCollate(tokens, at);
}

// Whether nothing is to be rewritten, as in most statements: those of a pay period have colons only in their times of day.
bool IsTheSameOnAServer(std::string_view statement)
{
    for (std::size_t at = statement.find_first_of(":\"[`"); at != std::string_view::npos; at = statement.find_first_of(":\"[`", at + 1)) {
        if (statement[at] != ':' || at + 1 == statement.size() || !IsDigit(statement[at + 1])) {
            return false;
        }
    }
    return true;
}

ServerText Rewritten(std::string_view statement)
{
    const std::vector<Token> tokens = SplitTokens(statement);
    ServerText text;
    text.sql.reserve(statement.size());
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (IsParameter(tokens, i)) {
            text.sql += NumberOf(tokens[++i].text, text.parameters);
        } else if (IsNameOfOurs(tokens, i)) {
            text.sql += SmallName(tokens[i].text);
        } else {
            text.sql += tokens[i].text;
        }
    }
    return text;
}

} // namespace

ServerText TranslateForServer(std::string_view statement)
{
    return IsTheSameOnAServer(statement) ? ServerText{std::string(statement), {}} : Rewritten(statement);
}

bool HoldsStatement(std::string_view text)
{
    const std::vector<Token> tokens = SplitTokens(text);
    return std::any_of(tokens.begin(), tokens.end(),
                       [](const Token& token) { return token.kind != TokenKind::Blank && token.text != ";"; });
}

} // namespace ptk
