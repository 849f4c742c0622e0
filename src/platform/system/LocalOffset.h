// How far local time is ahead of universal time.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>

namespace ptk {

// How many seconds local time is ahead of universal time when the wall clock shows `wall`. A moment that comes twice counts as the first;
// one that the clock skips gets the offset from before the clock was put forward.
[[nodiscard]] std::int64_t LocalOffset(DateTime wall);

} // namespace ptk
