// A finding of certain records.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"

#include <cstdint>
#include <span>
#include <string>

namespace ptk {

// From the first one's start to the latest end. REQUIRES: at least one, all readable, by start, end and number.
[[nodiscard]] Finding FindingOf(FindingKind kind, std::span<const Punch* const> punches, std::int64_t minutes, std::string text);

} // namespace ptk
