// Numbers, booleans and their texts.
#include "platform/Failure.h"
#include "platform/text/Characters.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fmt/format.h>
#include <limits>

namespace ptk {

namespace {

// Whether the text is an optional sign, digits with at most one point, an optional exponent. Keeps "inf", "nan" and hexadecimal out.
bool IsDecimal(std::string_view text)
{
    std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t digits = 0;
    bool point = false;
    for (; at < text.size() && (IsDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
        point = point || text[at] == '.';
        digits += IsDigit(text[at]) ? 1 : 0;
    }
    if (digits == 0 || at == text.size()) {
        return digits > 0;
    }
    if (text[at] != 'e' && text[at] != 'E') {
        return false;
    }
    at += at + 1 < text.size() && (text[at + 1] == '+' || text[at + 1] == '-') ? 2 : 1;
    if (at == text.size()) {
        return false;
    }
    return text.substr(at).find_first_not_of("0123456789") == std::string_view::npos;
}

// Whether a decimal text that is out of range (and so not zero) is below one, not above it. Values out of range come nowhere near one.
bool IsBelowOne(std::string_view text)
{
    const std::size_t exponentAt = std::min(text.find_first_of("eE"), text.size());
    const std::string_view mantissa = text.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    std::string_view digits = text.substr(std::min(exponentAt + 1, text.size()));
    if (digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    std::int32_t exponent = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec == std::errc::result_out_of_range) {
        return digits.starts_with('-'); // outweighs any mantissa
    }
    return exponent + point <= first;
}

template <typename Float>
Float ParseFloat(std::string_view text)
{
    text = Trimmed(text);
    if (!IsDecimal(text)) {
        throw Failure(failure::TypeMismatch);
    }
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    Float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc{}) {
        return value;
    }
    if (IsBelowOne(text)) {
        return 0; // too small to be told from zero
    }
    throw Failure(failure::Overflow);
}

// Ties go to the even neighbour, which is the rounding mode the process runs in.
double RoundHalfToEven(double value)
{
    return std::nearbyint(value);
}

template <typename Integer>
Integer ParseInteger(std::string_view text)
{
    const double value = RoundHalfToEven(ParseFloat<double>(text));
    if (value < static_cast<double>(std::numeric_limits<Integer>::min()) ||
        value > static_cast<double>(std::numeric_limits<Integer>::max())) {
        throw Failure(failure::Overflow);
    }
    return static_cast<Integer>(value);
}

// The significant digits of a number and the place of its point, as the shortest scientific text gives them.
struct Decimal
{
    bool negative = false;
    std::string digits; // without point, at least one
    int exponent = 0;   // of the first digit: 12.3 has 1
};

template <typename Float>
Decimal ShortestDecimal(Float value)
{
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    Decimal decimal;
    const char* at = buffer.data();
    for (; at != end && *at != 'e'; ++at) {
        if (*at == '-') {
            decimal.negative = true;
        } else if (*at != '.') {
            decimal.digits += *at;
        }
    }
    if (at == end) {
        throw Failure(failure::Overflow); // infinity or not a number
    }
    at += at[1] == '+' ? 2 : 1;
    std::from_chars(at, end, decimal.exponent);
    return decimal;
}

// The digits before the point and those after it, without an exponent.
std::pair<std::string, std::string> Positional(const Decimal& decimal)
{
    const int whole = decimal.exponent + 1;
    const auto count = static_cast<int>(decimal.digits.size());
    if (whole <= 0) {
        return {"0", std::string(static_cast<std::size_t>(-whole), '0') + decimal.digits};
    }
    if (whole >= count) {
        return {decimal.digits + std::string(static_cast<std::size_t>(whole - count), '0'), ""};
    }
    return {decimal.digits.substr(0, static_cast<std::size_t>(whole)), decimal.digits.substr(static_cast<std::size_t>(whole))};
}

template <typename Float>
std::string ShortestText(Float value)
{
    if (value == 0) {
        return "0";
    }
    const Decimal decimal = ShortestDecimal(value);
    const auto [whole, fraction] = Positional(decimal);
    std::string text = decimal.negative ? "-" : "";
    text += whole;
    if (!fraction.empty()) {
        text += '.' + fraction;
    }
    return text;
}

// Adds one to a run of decimal digits, which may grow by one.
void Increment(std::string& digits)
{
    for (std::size_t at = digits.size(); at-- > 0;) {
        if (digits[at] != '9') {
            ++digits[at];
            return;
        }
        digits[at] = '0';
    }
    digits.insert(digits.begin(), '1');
}

} // namespace

std::int16_t ToInt16(std::string_view text)
{
    return ParseInteger<std::int16_t>(text);
}
std::int32_t ToInt32(std::string_view text)
{
    return ParseInteger<std::int32_t>(text);
}
float ToSingle(std::string_view text)
{
    return ParseFloat<float>(text);
}
double ToDouble(std::string_view text)
{
    return ParseFloat<double>(text);
}

bool ToBoolean(std::string_view text)
{
    const std::string word = LowerCase(Trimmed(text));
    if (word == "true" || word == "false") {
        return word == "true";
    }
    return ToDouble(text) != 0;
}

std::string SingleText(float value)
{
    return ShortestText(value);
}
std::string DoubleText(double value)
{
    return ShortestText(value);
}
std::string BooleanText(bool value)
{
    return value ? "True" : "False";
}

std::string TwoDecimals(float value)
{
    if (value == 0) {
        return "0.00";
    }
    const Decimal decimal = ShortestDecimal(value);
    auto [whole, fraction] = Positional(decimal);
    fraction.resize(std::max<std::size_t>(fraction.size(), 2), '0');
    const bool roundUp = fraction.size() > 2 && fraction[2] >= '5';
    std::string digits = whole + fraction.substr(0, 2);
    if (roundUp) {
        Increment(digits);
    }
    const bool isZero = digits.find_first_not_of('0') == std::string::npos;
    digits.insert(digits.size() - 2, 1, '.');
    return decimal.negative && !isZero ? '-' + digits : digits;
}

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower) {
        c = LowerCase(c);
    }
    return lower;
}

std::size_t CharacterCount(std::string_view utf8)
{
    std::size_t count = 0;
    for (const char c : utf8) {
        count += (static_cast<unsigned char>(c) & 0xC0U) == 0x80U ? 0 : 1; // continuation bytes belong to the character before
    }
    return count;
}

std::string HoursAndMinutes(std::int64_t minutes)
{
    return fmt::format("{}{}:{:02}", minutes < 0 ? "-" : "", std::llabs(minutes) / 60, std::llabs(minutes) % 60);
}

} // namespace ptk
