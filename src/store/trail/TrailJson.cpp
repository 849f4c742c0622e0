#include "store/trail/TrailJson.h"

#include "platform/text/Characters.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>

namespace ptk {

namespace {

constexpr int kDeepest = 100; // objects and lists within each other: what another tool wrote may be anything
constexpr char32_t kNoCharacter = 0xFFFD;

bool IsHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

void AddUtf8(char32_t character, std::string& text)
{
    const auto add = [&](char32_t bits) { text += static_cast<char>(bits); };
    if (character < 0x80) {
        return add(character);
    }
    if (character < 0x800) {
        add(0xC0 | character >> 6U);
    } else {
        if (character < 0x10000) {
            add(0xE0 | character >> 12U);
        } else {
            add(0xF0 | character >> 18U);
            add(0x80 | (character >> 12U & 0x3FU));
        }
        add(0x80 | (character >> 6U & 0x3FU));
    }
    add(0x80 | (character & 0x3FU));
}

// Each member that takes a part answers whether it comes next, and goes behind it; after a false the place is of no use.
class JsonReader
{
public:
    explicit JsonReader(std::string_view text) : m_left(text) {}

    bool TakeAll(TrailRow& row)
    {
        std::size_t count = 0;
        const auto next = [&]() -> TrailValue& { return count++ == row.size() ? row.emplace_back() : row[count - 1]; };
        if (!TakeFields(next, [](const TrailValue& /*field*/) {})) {
            return false;
        }
        row.resize(count);
        SkipBlanks();
        return m_left.empty();
    }

private:
    void SkipBlanks()
    {
        if (m_left.empty() || m_left.front() > ' ') { // as between most signs: the program's own triggers write none
            return;
        }
        m_left.remove_prefix(std::min(m_left.find_first_not_of(" \t\r\n"), m_left.size()));
    }

    bool Take(char sign)
    {
        SkipBlanks();
        const bool is = m_left.starts_with(sign);
        m_left.remove_prefix(is ? 1 : 0);
        return is;
    }

    bool TakeWord(std::string_view word)
    {
        const bool is = m_left.starts_with(word);
        m_left.remove_prefix(is ? word.size() : 0);
        return is;
    }

    // Takes what is listed between the signs of an object or a list.
    template <typename TakeOne>
    bool TakeListed(char first, char last, const TakeOne& takeOne)
    {
        if (!Take(first)) {
            return false;
        }
        if (Take(last)) {
            return true;
        }
        do {
            if (!takeOne()) {
                return false;
            }
        } while (Take(','));
        return Take(last);
    }

    // Takes each field into the value that `next` answers; `taken` is called with those that are whole.
    template <typename Next, typename Taken>
    bool TakeFields(const Next& next, const Taken& taken)
    {
        return TakeListed('{', '}', [&] {
            TrailValue& field = next();
            field.kind = TrailValue::Kind::Null;
            field.column.clear();
            field.text.clear();
            if (!TakeText(field.column) || !Take(':') || !TakeValue(field)) {
                return false;
            }
            taken(field);
            return true;
        });
    }

    bool TakeValue(TrailValue& value)
    {
        SkipBlanks();
        if (m_left.starts_with('"')) {
            value.kind = TrailValue::Kind::Text;
            return TakeText(value.text);
        }
        if (m_left.starts_with('{') || m_left.starts_with('[')) {
            value.kind = TrailValue::Kind::Bytes;
            return TakeNested(value.text);
        }
        return TakeNamed(value) || TakeNumber(value);
    }

    bool TakeNested(std::string& digits)
    {
        if (++m_depth > kDeepest) {
            return false;
        }
        TrailValue inner;
        const auto next = [&]() -> TrailValue& { return inner; };
        const auto look = [&](TrailValue& field) {
            if (field.column == "blob" && field.kind == TrailValue::Kind::Text) {
                digits = std::move(field.text);
            }
        };
        const bool taken = m_left.starts_with('{') ? TakeFields(next, look) : TakeListed('[', ']', [&] {
            inner.text.clear();
            return TakeValue(inner);
        });
        --m_depth;
        return taken;
    }

    // Takes null, true or false. As a number, true is 1.
    bool TakeNamed(TrailValue& value)
    {
        if (TakeWord("null")) {
            return true;
        }
        value.kind = TrailValue::Kind::Number;
        value.text = m_left.starts_with('t') ? "1" : "0";
        return TakeWord("true") || TakeWord("false");
    }

    std::size_t CountDigits(std::size_t from) const
    {
        std::size_t end = from;
        while (end < m_left.size() && IsDigit(m_left[end])) {
            ++end;
        }
        return end - from;
    }

    bool HasAt(std::size_t at, std::string_view anyOf) const
    {
        return at < m_left.size() && anyOf.find(m_left[at]) != std::string_view::npos;
    }

    bool TakeNumber(TrailValue& value)
    {
        std::size_t end = m_left.starts_with('-') ? 1 : 0;
        std::size_t digits = CountDigits(end);
        const bool begins = digits == 1 || (digits > 1 && m_left[end] != '0');
        end += digits;
        if (begins && HasAt(end, ".")) {
            digits = CountDigits(++end);
            end += digits;
        }
        if (begins && digits > 0 && HasAt(end, "eE")) {
            end += HasAt(end + 1, "+-") ? 2 : 1;
            digits = CountDigits(end);
            end += digits;
        }
        value.text = m_left.substr(0, end);
        m_left.remove_prefix(end);
        return begins && digits > 0;
    }

    bool TakeText(std::string& text)
    {
        if (!Take('"')) {
            return false;
        }
        while (true) {
            const auto* const end = std::find_if(m_left.begin(), m_left.end(), [](char c) { return c == '"' || c == '\\'; });
            if (end == m_left.end()) {
                return false;
            }
            text.append(m_left.begin(), end);
            m_left.remove_prefix(static_cast<std::size_t>(end - m_left.begin()));
            if (Take('"')) {
                return true;
            }
            m_left.remove_prefix(1);
            if (!TakeEscaped(text)) {
                return false;
            }
        }
    }

    bool TakeEscaped(std::string& text)
    {
        constexpr std::string_view kSigns = "\"\\/bfnrt";
        constexpr std::string_view kMeant = "\"\\/\b\f\n\r\t";
        if (TakeWord("u")) {
            return TakeCharacter(text);
        }
        const std::size_t place = m_left.empty() ? std::string_view::npos : kSigns.find(m_left.front());
        if (place == std::string_view::npos) {
            return false;
        }
        text += kMeant[place];
        m_left.remove_prefix(1);
        return true;
    }

    bool TakeUnit(char32_t& unit)
    {
        std::uint16_t number = 0;
        const char* const end = m_left.data() + std::min<std::size_t>(4, m_left.size());
        if (m_left.size() < 4 || std::from_chars(m_left.data(), end, number, 16).ptr != end) {
            return false;
        }
        unit = number;
        m_left.remove_prefix(4);
        return true;
    }

    // Takes one character, of two units where these are a pair. Half of a pair is no character.
    bool TakeCharacter(std::string& text)
    {
        char32_t unit = 0;
        if (!TakeUnit(unit)) {
            return false;
        }
        char32_t second = 0;
        const std::string_view behind = m_left;
        if (IsHighSurrogate(unit) && TakeWord("\\u") && TakeUnit(second) && IsLowSurrogate(second)) {
            unit = 0x10000 + ((unit - 0xD800) << 10U) + (second - 0xDC00);
        } else {
            m_left = behind;
        }
        AddUtf8(unit >= 0xD800 && unit < 0xE000 ? kNoCharacter : unit, text);
        return true;
    }

    std::string_view m_left;
    int m_depth = 0;
};

} // namespace

bool ParseTrailRow(std::string_view json, TrailRow& row)
{
    return JsonReader(json).TakeAll(row);
}

} // namespace ptk
