#include "platform/text/Value.h"

#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <cmath>
#include <limits>
#include <type_traits>

namespace ptk {

namespace {

// The number a value stands for; a true boolean is -1, a date-time its days since the zero date-time.
double NumberOf(const Value::Storage& storage)
{
    return std::visit(
        [](const auto& value) -> double {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                throw Failure(failure::InvalidUseOfNull);
            } else if constexpr (std::is_same_v<T, bool>) {
                return value ? -1 : 0;
            } else if constexpr (std::is_same_v<T, DateTime>) {
                return static_cast<double>(value.Seconds()) / DateTime::kSecondsPerDay;
            } else if constexpr (std::is_same_v<T, std::string>) {
                return ToDouble(value);
            } else {
                return static_cast<double>(value);
            }
        },
        storage);
}

template <typename Integer>
Integer IntegerOf(const Value::Storage& storage)
{
    const double value = std::nearbyint(NumberOf(storage));
    if (!(value >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          value <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw Failure(failure::Overflow);
    }
    return static_cast<Integer>(value);
}

template <typename Integer>
Integer Narrow(std::int64_t value)
{
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
        throw Failure(failure::Overflow);
    }
    return static_cast<Integer>(value);
}

DateTime DateTimeOfDays(double days)
{
    const double seconds = std::nearbyint(days * DateTime::kSecondsPerDay);
    if (!(std::abs(seconds) < 1e12)) {
        throw Failure(failure::Overflow);
    }
    return DateTime::FromSeconds(static_cast<std::int64_t>(seconds));
}

} // namespace

bool Value::IsDate() const
{
    if (const auto* text = std::get_if<std::string>(&m_value)) {
        return ParseDateTime(*text).has_value();
    }
    return std::holds_alternative<DateTime>(m_value);
}

bool Value::ToBoolean() const
{
    if (const auto* text = std::get_if<std::string>(&m_value)) {
        return ptk::ToBoolean(*text);
    }
    return NumberOf(m_value) != 0;
}

std::int16_t Value::ToInt16() const
{
    return IntegerOf<std::int16_t>(m_value);
}
std::int32_t Value::ToInt32() const
{
    return IntegerOf<std::int32_t>(m_value);
}

float Value::ToSingle() const
{
    const double value = NumberOf(m_value);
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw Failure(failure::Overflow);
    }
    return static_cast<float>(value);
}

double Value::ToDouble() const
{
    return NumberOf(m_value);
}

DateTime Value::ToDateTime() const
{
    if (const auto* moment = std::get_if<DateTime>(&m_value)) {
        return *moment;
    }
    if (const auto* text = std::get_if<std::string>(&m_value)) {
        return ptk::ToDateTime(*text);
    }
    return DateTimeOfDays(NumberOf(m_value));
}

std::string Value::ToText() const
{
    return std::visit(
        [](const auto& value) -> std::string {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                throw Failure(failure::InvalidUseOfNull);
            } else if constexpr (std::is_same_v<T, bool>) {
                return BooleanText(value);
            } else if constexpr (std::is_same_v<T, float>) {
                return SingleText(value);
            } else if constexpr (std::is_same_v<T, double>) {
                return DoubleText(value);
            } else if constexpr (std::is_same_v<T, DateTime>) {
                return GeneralText(value);
            } else if constexpr (std::is_same_v<T, std::string>) {
                return value;
            } else {
                return std::to_string(value);
            }
        },
        m_value);
}

std::int16_t NarrowToInt16(std::int64_t value)
{
    return Narrow<std::int16_t>(value);
}
std::int32_t NarrowToInt32(std::int64_t value)
{
    return Narrow<std::int32_t>(value);
}

} // namespace ptk
