// The loosely typed value that record sets, query parameters and "any value" arguments carry.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <string>
#include <variant>

namespace ptk {

// A value: nothing (a database null), a boolean, a 16- or 32-bit integer, a single, a double, a date-time or text. As a number, a true
// boolean is -1 and a date-time its days since the zero date-time. The conversions raise Failure 94 for null, 13 for a value without such a
// meaning, 6 for one that does not fit; nothing ever wraps.
class Value
{
public:
    Value() = default;
    Value(bool value) : m_value(value) {}
    Value(std::int16_t value) : m_value(value) {}
    Value(std::int32_t value) : m_value(value) {}
    Value(float value) : m_value(value) {}
    Value(double value) : m_value(value) {}
    Value(DateTime value) : m_value(value) {}
    Value(std::string value) : m_value(std::move(value)) {}
    Value(const char* value) : m_value(std::string(value)) {}

    [[nodiscard]] bool IsNull() const { return std::holds_alternative<std::monostate>(m_value); }

    // Whether it is a date-time, or text that reads as one.
    [[nodiscard]] bool IsDate() const;

    [[nodiscard]] bool ToBoolean() const;

    [[nodiscard]] std::int16_t ToInt16() const;
    [[nodiscard]] std::int32_t ToInt32() const;
    [[nodiscard]] float ToSingle() const;
    [[nodiscard]] double ToDouble() const;

    // The date-time; a number counts days since the zero date-time.
    [[nodiscard]] DateTime ToDateTime() const;

    [[nodiscard]] std::string ToText() const;

    using Storage = std::variant<std::monostate, bool, std::int16_t, std::int32_t, float, double, DateTime, std::string>;
    [[nodiscard]] const Storage& Get() const { return m_value; }

private:
    Storage m_value;
};

// Narrow an integer; raise Failure 6 instead of wrapping.
[[nodiscard]] std::int16_t NarrowToInt16(std::int64_t value);
[[nodiscard]] std::int32_t NarrowToInt32(std::int64_t value);

} // namespace ptk
