// Whether an "any value" argument counts as a number.
#pragma once

namespace ptk {

class Value;

// Numbers, booleans and text that reads as a number; neither nothing nor a date-time. Never raises.
[[nodiscard]] bool IsNumeric(const Value& value);

} // namespace ptk
