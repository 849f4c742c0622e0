#include "store/engine/RecordSetBuilder.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"
#include "store/engine/StoredDate.h"

#include <bit>

namespace ptk {

namespace {

// A record set of more than a gigabyte comes from a wrong query; ten million time records take 40 million cells.
constexpr std::size_t kMostCells = std::size_t{1} << 26U;
constexpr std::size_t kMostTextBytes = std::size_t{1} << 30U;

} // namespace

void RecordSet::Builder::AddColumn(std::string name, std::string_view declared)
{
    struct Declaration
    {
        std::string_view word;
        Type type;
    };
    static constexpr Declaration kDeclarations[] = {{"integer", Type::Integer},
                                                    {"datetime", Type::DateTime},
                                                    {"single", Type::Single},
                                                    {"boolean", Type::Boolean},
                                                    {"text", Type::Text}};
    const std::string word = LowerCase(declared);
    Type type = Type::Any;
    for (const Declaration& declaration : kDeclarations) {
        if (declaration.word == word) {
            type = declaration.type;
        }
    }
    m_rows->m_headings.push_back({std::move(name), type});
}

void RecordSet::Builder::Add(Kind kind, std::int64_t content, std::uint32_t size)
{
    m_rows->m_cells.push_back({content, size, kind});
    ++m_column;
}

void RecordSet::Builder::AddReal(double value)
{
    Add(Kind::Real, std::bit_cast<std::int64_t>(value));
}

// Most of what is read are date-times: converted while their text is at hand, they need no room for texts.
void RecordSet::Builder::AddText(std::string_view value)
{
    if (NextType() == Type::DateTime) {
        if (const auto moment = FromStoredText(value)) {
            Add(Kind::DateTime, moment->Seconds());
            return;
        }
    }
    std::string& texts = m_rows->m_texts;
    const auto offset = static_cast<std::int64_t>(texts.size());
    texts.append(value);
    Add(Kind::Text, offset, static_cast<std::uint32_t>(value.size()));
}

void RecordSet::Builder::EndRow()
{
    if (m_rows->m_cells.size() > kMostCells || m_rows->m_texts.size() > kMostTextBytes) {
        throw Failure(failure::OutOfMemory, "PTK", "the statement answers more than fits into memory");
    }
    ++m_rows->m_rowCount;
    m_column = 0;
}

} // namespace ptk
