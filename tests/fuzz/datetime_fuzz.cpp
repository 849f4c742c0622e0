// Whatever the bytes: a date-time or "not a date"; and the text of a date-time reads back to the same second.
#include "platform/text/Text.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto value = ptk::ParseDateTime({reinterpret_cast<const char*>(data), size});
    if (value && ptk::ParseDateTime(ptk::GeneralText(*value)) != value) {
        std::abort();
    }
    return 0;
}
