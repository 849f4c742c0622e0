#include "platform/text/DecimalSum.h"

#include "platform/text/Characters.h"

#include <algorithm>

namespace ptk {

namespace {

constexpr std::int64_t kBase = 10;
constexpr std::size_t kDecimals = 2;

} // namespace

void DecimalSum::Add(std::string_view amount)
{
    const std::int64_t sign = amount.starts_with('-') ? -1 : 1;
    std::size_t position = 0;
    for (std::size_t i = amount.size(); i-- > 0;) {
        if (IsDigit(amount[i])) {
            m_digits.at(position++) += sign * (amount[i] - '0');
        }
    }
}

std::string DecimalSum::Text() const
{
    // After carrying, the highest digit that is not 0 has the sign of the sum. A negative sum is carried again with all its digits negated.
    const auto carried = [](std::array<std::int64_t, kDigits> digits) {
        for (std::size_t i = 0; i + 1 < digits.size(); ++i) {
            const std::int64_t digit = (digits[i] % kBase + kBase) % kBase;
            digits[i + 1] += (digits[i] - digit) / kBase;
            digits[i] = digit;
        }
        return digits;
    };
    std::array<std::int64_t, kDigits> digits = carried(m_digits);
    const bool negative = digits.back() < 0;
    if (negative) {
        digits = m_digits;
        std::for_each(digits.begin(), digits.end(), [](std::int64_t& digit) { digit = -digit; });
        digits = carried(digits);
    }
    std::string text;
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != 0 || !text.empty() || i <= kDecimals) {
            text += static_cast<char>('0' + digits[i]);
        }
    }
    text.insert(text.size() - kDecimals, 1, '.');
    return negative ? '-' + text : text;
}

} // namespace ptk
