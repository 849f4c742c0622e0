#include "store/engine/RowSink.h"

#include "platform/text/CodePage.h"
#include "store/engine/Statement.h"

#include <cmath>
#include <limits>

namespace ptk {

namespace {

constexpr const char* kNoNumber = "no number";
constexpr const char* kNoWholeNumber = "no whole number";
constexpr const char* kTooLarge = "out of range";
constexpr const char* kNoText = "no text";
constexpr const char* kZeroByte = "a text with a zero byte";
constexpr const char* kNoUtf8 = "a text that is not in UTF-8";
constexpr const char* kNoDate = "no date and time of the years 100 to 9999 as it is stored";

std::int64_t Whole(const Statement& from, int place, std::int64_t least, std::int64_t most)
{
    const std::int64_t number = from.Int64At(place);
    const double real = from.RealAt(place);
    if (real != std::floor(real)) {
        throw Unfit{place, kNoWholeNumber};
    }
    if (std::abs(real) > 9.2e18 || number < least || number > most) {
        throw Unfit{place, kTooLarge};
    }
    return number;
}

template <typename Number>
std::int64_t Whole(const Statement& from, int place)
{
    return Whole(from, place, std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max());
}

double Single(const Statement& from, int place)
{
    const double real = from.RealAt(place);
    if (std::isfinite(real) && !std::isfinite(static_cast<float>(real))) {
        throw Unfit{place, kTooLarge};
    }
    return real;
}

FitValue FitNumber(ColumnKind kind, const Statement& from, int place)
{
    if (from.KindAt(place) != CellKind::Number) {
        throw Unfit{place, kNoNumber};
    }
    switch (kind) {
    case ColumnKind::Long:
        return Whole<std::int64_t>(from, place);
    case ColumnKind::Single:
        return Single(from, place);
    case ColumnKind::Flag:
        return std::int64_t{from.RealAt(place) != 0 ? 1 : 0};
    default:
        return Whole<std::int32_t>(from, place);
    }
}

FitValue FitText(ColumnKind kind, const Statement& from, int place)
{
    if (from.KindAt(place) != CellKind::Text) {
        throw Unfit{place, kind == ColumnKind::Date ? kNoDate : kNoText};
    }
    const std::string_view text = from.TextAt(place);
    if (kind == ColumnKind::Date) {
        if (!from.StoredDateAt(place)) {
            throw Unfit{place, kNoDate};
        }
    } else if (text.find('\0') != std::string_view::npos) {
        throw Unfit{place, kZeroByte};
    } else if (!IsUtf8(text)) {
        throw Unfit{place, kNoUtf8};
    }
    return text;
}

} // namespace

FitValue FitInto(const StoredColumn& column, const Statement& from, int place)
{
    if (from.KindAt(place) == CellKind::Null) {
        return {};
    }
    switch (column.kind) {
    case ColumnKind::Text:
    case ColumnKind::Json:
    case ColumnKind::Date:
        return FitText(column.kind, from, place);
    default:
        return FitNumber(column.kind, from, place);
    }
}

} // namespace ptk
