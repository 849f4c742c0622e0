// What the local time zone says of a moment of the wall clock.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>

namespace ptk {

// Seconds by which the wall clock that shows `wall` is ahead of universal time. A moment that comes twice is the first; one that the clock
// leaves out is as before it was put forward.
[[nodiscard]] std::int64_t LocalOffset(DateTime wall);

} // namespace ptk
