// Tells whether an "any value" argument counts as a number.
#pragma once

namespace ptk {

class Value;

// True for numbers, booleans and text that reads as a number; false for null and a date-time. Never raises.
[[nodiscard]] bool IsNumeric(const Value& value);

} // namespace ptk
