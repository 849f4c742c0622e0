// Whatever bytes a statement holds, it is translated or refused as a type mismatch; taken apart it loses nothing; and no text in it
// changes.
#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/Dialect.h"
#include "store/engine/Lexer.h"
#include "store/engine/StoredDate.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

std::string Joined(const std::vector<ptk::Token>& tokens)
{
    std::string text;
    for (const ptk::Token& token : tokens) {
        text += token.text;
    }
    return text;
}

// The texts of a statement in their order, dates in their stored form.
std::vector<std::string> Texts(std::string_view statement)
{
    std::vector<std::string> texts;
    for (const ptk::Token& token : ptk::SplitTokens(statement)) {
        if (token.kind == ptk::TokenKind::Text) {
            texts.emplace_back(token.text);
        }
        if (token.kind == ptk::TokenKind::Date) {
            texts.push_back("'" + ptk::StoredText(ptk::ToDateTime(token.text.substr(1, token.text.size() - 2))) + "'");
        }
    }
    return texts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string statement(reinterpret_cast<const char*>(data), size);
    Require(Joined(ptk::SplitTokens(statement)) == statement);
    try {
        const std::string translated = ptk::TranslateStatement(statement);
        Require(Texts(translated) == Texts(statement));
    } catch (const ptk::Failure& failure) {
        Require(failure.Number() == ptk::failure::TypeMismatch && statement.find('#') != std::string::npos);
    }
    return 0;
}
