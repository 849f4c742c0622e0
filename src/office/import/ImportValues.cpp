#include "office/import/ImportValues.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace ptk {

namespace {

constexpr std::int32_t kGreatestKey = 2'147'483'646;

template <typename Number>
std::optional<Number> ReadWhole(const std::string& text)
{
    Number number = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

bool HasText(const OldValue& old)
{
    return old.kind == OldValue::Kind::Text || old.kind == OldValue::Kind::PartlyReadText || old.kind == OldValue::Kind::Number;
}

std::optional<DateTime> MomentOf(const OldValue& old)
{
    if (old.kind != OldValue::Kind::Moment) {
        return old.kind == OldValue::Kind::Text ? ParseDateTime(old.text) : std::nullopt;
    }
    const auto seconds = ReadWhole<std::int64_t>(old.text);
    return seconds ? std::optional(DateTime::FromSeconds(*seconds)) : std::nullopt;
}

// The number; nothing, or a failure, if there is none of this kind.
Value WholeNumber(const OldValue& old, ImportKind kind)
{
    if (const auto number = ReadWhole<std::int32_t>(old.text); number && kind != ImportKind::Short) {
        return kind != ImportKind::Key || (*number >= 1 && *number <= kGreatestKey) ? Value(*number) : Value();
    }
    if (kind == ImportKind::Key) {
        return {};
    }
    return kind == ImportKind::Short ? Value(ToInt16(old.text)) : Value(ToInt32(old.text));
}

Value Single(const OldValue& old)
{
    const auto number = ReadWhole<float>(old.text);
    return number && std::isfinite(*number) ? Value(*number) : Value();
}

Value Flag(const OldValue& old)
{
    if (const auto number = ReadWhole<double>(old.text)) {
        return *number != 0;
    }
    return ToBoolean(old.text);
}

Value Date(const OldValue& old, ImportKind kind)
{
    const auto moment = MomentOf(old);
    if (!moment) {
        return {};
    }
    return kind == ImportKind::TimeOfDay ? DateTime(CalendarDate{}, moment->Time()) : *moment;
}

// The value; Null if none of the kind can be made of it, for which it may also raise a failure.
Value Converted(ImportKind kind, const OldValue& old)
{
    if (kind == ImportKind::Date || kind == ImportKind::Moment || kind == ImportKind::TimeOfDay) {
        return Date(old, kind);
    }
    if (!HasText(old)) {
        return {};
    }
    switch (kind) {
    case ImportKind::Text:
        return old.text;
    case ImportKind::Single:
        return Single(old);
    case ImportKind::Flag:
        return Flag(old);
    default:
        return WholeNumber(old, kind);
    }
}

} // namespace

ImportedValue ImportValue(const ImportColumn& column, const OldValue* old)
{
    if (old == nullptr) {
        return {column.absent};
    }
    if (old->kind == OldValue::Kind::None) {
        return {column.empty, column.kind == ImportKind::Key};
    }
    Value value;
    try {
        value = Converted(column.kind, *old);
    } catch (const Failure&) { // out of range, or no number at all
    }
    const bool impossible = value.IsNull();
    return {impossible ? column.empty : value, impossible, !impossible && old->kind == OldValue::Kind::PartlyReadText};
}

} // namespace ptk
