#include "store/engine/Dialect.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/Lexer.h"
#include "store/engine/StoredDate.h"

#include <algorithm>

namespace ptk {

namespace {

// Whether the token is the keyword, which is given in lower case.
bool IsKeyword(const Token& token, std::string_view keyword)
{
    return token.kind == TokenKind::Word && token.text.size() == keyword.size() && LowerCase(token.text) == keyword;
}

bool IsSign(const Token& token, char sign)
{
    return token.kind == TokenKind::Sign && token.text.front() == sign;
}

bool IsName(const Token& token)
{
    return token.kind == TokenKind::Word || token.kind == TokenKind::Quoted;
}

std::string BareName(const Token& token)
{
    const bool quoted = token.kind == TokenKind::Quoted && token.text.size() >= 2;
    return LowerCase(quoted ? token.text.substr(1, token.text.size() - 2) : token.text);
}

// The tokens that carry meaning, in their order. The blanks between them stay where they are.
using Meaning = std::vector<Token*>;

Meaning WithoutBlanks(std::vector<Token>& tokens)
{
    Meaning meaning;
    meaning.reserve(tokens.size());
    for (Token& token : tokens) {
        if (token.kind != TokenKind::Blank) {
            meaning.push_back(&token);
        }
    }
    return meaning;
}

// Drops tokens. One blank stays, so that the neighbours do not grow together.
void Drop(const Meaning& meaning, std::size_t from, std::size_t to)
{
    for (std::size_t i = from; i < to; ++i) {
        *meaning[i] = {TokenKind::Blank, i == from ? " " : ""};
    }
}

bool MayStandInColumnList(const Token& token)
{
    return IsName(token) || IsSign(token, '.') || IsSign(token, ',') || IsSign(token, '*');
}

// Drops the columns of DELETE a, b FROM t: rows are deleted whole, whatever columns are listed.
void DropColumnList(const Meaning& meaning)
{
    std::size_t from = 1;
    while (from < meaning.size() && !IsKeyword(*meaning[from], "from")) {
        if (!MayStandInColumnList(*meaning[from])) {
            return;
        }
        ++from;
    }
    if (from < meaning.size()) {
        Drop(meaning, 1, from);
    }
}

// Drops "table." where it stands before the name at `position`.
void DropQualifier(const Meaning& meaning, std::size_t position, const std::string& table)
{
    if (position + 2 < meaning.size() && IsName(*meaning[position]) && IsSign(*meaning[position + 1], '.') &&
        IsName(*meaning[position + 2]) && BareName(*meaning[position]) == table) {
        Drop(meaning, position, position + 2);
    }
}

// Drops the table's name in UPDATE t SET t.a = 1, t.b = 2: an assigned column can only be the table's own.
void DropQualifiers(const Meaning& meaning)
{
    if (meaning.size() < 3 || !IsName(*meaning[1]) || !IsKeyword(*meaning[2], "set")) {
        return;
    }
    const std::string table = BareName(*meaning[1]);
    DropQualifier(meaning, 3, table);
    int depth = 0;
    for (std::size_t i = 3; i < meaning.size() && !IsKeyword(*meaning[i], "where"); ++i) {
        depth += IsSign(*meaning[i], '(') ? 1 : 0;
        depth -= IsSign(*meaning[i], ')') ? 1 : 0;
        if (depth == 0 && IsSign(*meaning[i], ',')) {
            DropQualifier(meaning, i + 1, table);
        }
    }
}

// The stored text of a date. It gets blanks around it, because two texts side by side would be one with a quote in it.
std::string DateText(std::string_view literal)
{
    if (literal.size() < 2 || literal.back() != '#') {
        throw Failure(failure::TypeMismatch);
    }
    return " '" + StoredText(ToDateTime(literal.substr(1, literal.size() - 2))) + "' ";
}

std::string Joined(const std::vector<Token>& tokens, std::size_t expectedSize)
{
    std::string text;
    text.reserve(expectedSize + 64);
    for (const Token& token : tokens) {
        if (token.kind == TokenKind::Date) {
            text += DateText(token.text);
        } else {
            text += token.text;
        }
    }
    return text;
}

} // namespace

std::string TranslateStatement(std::string_view statement)
{
    std::vector<Token> tokens = SplitTokens(statement);
    const auto first = std::find_if(tokens.begin(), tokens.end(), [](const Token& token) { return token.kind != TokenKind::Blank; });
    if (first != tokens.end() && IsKeyword(*first, "delete")) {
        DropColumnList(WithoutBlanks(tokens));
    } else if (first != tokens.end() && IsKeyword(*first, "update")) {
        DropQualifiers(WithoutBlanks(tokens));
    }
    return Joined(tokens, statement.size());
}

} // namespace ptk
