#include "shell/Numeric.h"

#include "platform/Succeeds.h"
#include "platform/text/Value.h"

#include <variant>

namespace ptk {

bool IsNumeric(const Value& value)
{
    if (value.IsNull() || std::holds_alternative<DateTime>(value.Get())) {
        return false;
    }
    return Succeeds([&] { static_cast<void>(value.ToDouble()); });
}

} // namespace ptk
