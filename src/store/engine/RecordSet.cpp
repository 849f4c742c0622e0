#include "store/engine/RecordSet.h"

#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"
#include "store/engine/StoredDate.h"

#include <algorithm>
#include <bit>
#include <fmt/format.h>

namespace ptk {

namespace {

constexpr std::size_t kLongestShown = 60; // bytes
constexpr const char* kNotStored = "not stored as YYYY-MM-DD HH:MM:SS";

std::string InQuotes(std::string_view text)
{
    std::size_t length = std::min(text.size(), kLongestShown);
    while (length > 0 && length < text.size() && (text[length] & 0xC0) == 0x80) { // within a character
        --length;
    }
    std::string shown(text.substr(0, length));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return '"' + shown + (length < text.size() ? "...\"" : "\"");
}

} // namespace

void RecordSet::MoveFirst()
{
    if (m_rowCount == 0) {
        throw Failure(failure::NoCurrentRecord);
    }
    m_row = 0;
}

void RecordSet::MoveNext()
{
    if (EndOfFile()) {
        throw Failure(failure::NoCurrentRecord);
    }
    ++m_row;
}

std::size_t RecordSet::Column(std::string_view name) const
{
    const auto isSame = [](char a, char b) { return LowerCase(a) == LowerCase(b); };
    for (std::size_t column = 0; column < m_headings.size(); ++column) {
        const std::string& heading = m_headings[column].name;
        if (std::equal(heading.begin(), heading.end(), name.begin(), name.end(), isSame)) {
            return column;
        }
    }
    throw Failure(failure::SubscriptOutOfRange, "PTK", "There is no column " + std::string(name) + ".");
}

const RecordSet::Cell& RecordSet::At(std::size_t column) const
{
    if (EndOfFile()) {
        throw Failure(failure::NoCurrentRecord);
    }
    if (column >= m_headings.size()) {
        throw Failure(failure::SubscriptOutOfRange);
    }
    return m_cells[static_cast<std::size_t>(m_row) * m_headings.size() + column];
}

Value RecordSet::Stored(const Cell& cell) const
{
    switch (cell.kind) {
    case Kind::Null:
        return {};
    case Kind::Integer:
        // Value has no wider integer, and a double holds every number that is not an overflow anyway.
        return cell.content == static_cast<std::int32_t>(cell.content) ? Value(static_cast<std::int32_t>(cell.content))
                                                                       : Value(static_cast<double>(cell.content));
    case Kind::Real:
        return std::bit_cast<double>(cell.content);
    case Kind::DateTime:
        return DateTime::FromSeconds(cell.content);
    case Kind::Text:
        return std::string(TextOf(cell));
    case Kind::Binary:
        break;
    }
    throw Failure(failure::TypeMismatch); // bytes are none of the types the program knows
}

// Other tools do not keep to the declared types, so the typed readers convert; they are quick where the value has the declared type.
Value RecordSet::Field(std::size_t column) const
{
    const Cell& cell = At(column);
    if (cell.kind == Kind::Null) {
        return {};
    }
    switch (m_headings[column].type) {
    case Type::Integer:
        return Int32At(column);
    case Type::DateTime:
        return DateTimeAt(column);
    case Type::Single:
        return SingleAt(column);
    case Type::Boolean:
        return BooleanAt(column);
    case Type::Text:
        return Stored(cell).ToText();
    case Type::Any:
        break;
    }
    return Stored(cell);
}

bool RecordSet::IsNull(std::size_t column) const
{
    return At(column).kind == Kind::Null;
}

std::int64_t RecordSet::Int64At(std::size_t column) const
{
    const Cell& cell = At(column);
    return cell.kind == Kind::Integer ? cell.content : Stored(cell).ToInt32();
}

std::int32_t RecordSet::Int32At(std::size_t column) const
{
    const Cell& cell = At(column);
    return cell.kind == Kind::Integer ? NarrowToInt32(cell.content) : Stored(cell).ToInt32();
}

std::int16_t RecordSet::Int16At(std::size_t column) const
{
    const Cell& cell = At(column);
    return cell.kind == Kind::Integer ? NarrowToInt16(cell.content) : Stored(cell).ToInt16();
}

float RecordSet::SingleAt(std::size_t column) const
{
    return Stored(At(column)).ToSingle();
}

bool RecordSet::BooleanAt(std::size_t column) const
{
    const Cell& cell = At(column);
    return cell.kind == Kind::Integer ? cell.content != 0 : Stored(cell).ToBoolean();
}

DateTime RecordSet::DateTimeAt(std::size_t column) const
{
    const Cell& cell = At(column);
    if (cell.kind == Kind::DateTime) {
        return DateTime::FromSeconds(cell.content);
    }
    if (const auto moment = cell.kind == Kind::Text ? FromStoredText(TextOf(cell)) : std::nullopt) {
        return *moment;
    }
    static_cast<void>(Stored(cell).ToDateTime()); // raises what tells that it is no date at all
    throw Failure(failure::TypeMismatch, "PTK", kNotStored);
}

std::string_view RecordSet::TextAt(std::size_t column) const
{
    const Cell& cell = At(column);
    if (cell.kind == Kind::Null) {
        throw Failure(failure::InvalidUseOfNull);
    }
    if (cell.kind != Kind::Text) {
        throw Failure(failure::TypeMismatch);
    }
    return TextOf(cell);
}

std::string RecordSet::TextToShow(std::size_t column) const
{
    const Cell& cell = At(column);
    switch (cell.kind) {
    case Kind::Null:
        return "NULL";
    case Kind::Integer:
        return std::to_string(cell.content);
    case Kind::Real:
        return fmt::format("{}", std::bit_cast<double>(cell.content));
    case Kind::DateTime:
        return InQuotes(StoredText(DateTime::FromSeconds(cell.content)));
    case Kind::Text:
        return InQuotes(TextOf(cell));
    case Kind::Binary:
        break;
    }
    return "a value of bytes";
}

bool RecordSet::HasStoredDate(std::size_t column) const
{
    const Cell& cell = At(column);
    return cell.kind == Kind::DateTime || (cell.kind == Kind::Text && FromStoredText(TextOf(cell)).has_value());
}

} // namespace ptk
