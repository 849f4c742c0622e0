// Whatever the bytes: a number, "no number" or "does not fit"; and the text of a number reads back to the same number.
#include "platform/Failure.h"
#include "platform/text/Text.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void CheckSingle(float value)
{
    const std::string text = ptk::SingleText(value);
    Require(ptk::ToSingle(text) == value && text.find_first_of("eE") == std::string::npos);
    const std::string rounded = ptk::TwoDecimals(value);
    Require(rounded.size() >= 4 && rounded[rounded.size() - 3] == '.' && rounded != "-0.00");
}

template <typename Read>
bool Reads(Read read)
{
    try {
        read();
        return true;
    } catch (const ptk::Failure& failure) {
        Require(failure.Number() == ptk::failure::TypeMismatch || failure.Number() == ptk::failure::Overflow);
        return false;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool isDouble = Reads([&] {
        const double value = ptk::ToDouble(text);
        Require(ptk::ToDouble(ptk::DoubleText(value)) == value);
    });
    const bool isSingle = Reads([&] { CheckSingle(ptk::ToSingle(text)); });
    const bool isLong = Reads([&] { Require(ptk::ToInt32(ptk::DoubleText(ptk::ToInt32(text))) == ptk::ToInt32(text)); });
    const bool isShort = Reads([&] { Require(ptk::ToInt16(text) == ptk::ToInt32(text)); });
    Require((isDouble || !isSingle) && (isDouble || !isLong) && (isLong || !isShort));
    Reads([&] { static_cast<void>(ptk::ToBoolean(text)); });
    return 0;
}
