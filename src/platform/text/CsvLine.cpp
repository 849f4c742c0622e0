#include "platform/text/CsvLine.h"

#include "platform/text/DataText.h"

namespace ptk {

CsvLine& CsvLine::Text(std::string_view text)
{
    return Plain(CsvText(text));
}

CsvLine& CsvLine::Plain(std::string_view text)
{
    m_line += m_begun ? "," : "";
    m_line += text;
    m_begun = true;
    return *this;
}

CsvLine& CsvLine::Empty(int fields)
{
    for (int i = 0; i < fields; ++i) {
        Plain("");
    }
    return *this;
}

} // namespace ptk
