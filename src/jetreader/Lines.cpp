#include "jetreader/Lines.h"

#include <cstdio>

namespace jet {

namespace {

void AppendEscaped(std::string& line, char character)
{
    switch (character) {
    case '\t':
        line += "\\t";
        break;
    case '\n':
        line += "\\n";
        break;
    case '\r':
        line += "\\r";
        break;
    case '\\':
        line += "\\\\";
        break;
    default:
        line += character;
    }
}

} // namespace

Line& Line::Text(std::string_view utf8, bool exact)
{
    Marked(exact ? '=' : '~', "");
    for (const char character : utf8) {
        AppendEscaped(m_text, character);
    }
    return *this;
}

Line& Line::Marked(char mark, std::string_view text)
{
    m_text += '\t';
    m_text += mark;
    m_text += text;
    return *this;
}

void Line::Write()
{
    m_text += '\n';
    std::fwrite(m_text.data(), 1, m_text.size(), stdout);
}

} // namespace jet
