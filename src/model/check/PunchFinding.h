// Makes a finding out of the punches that it is about.
#pragma once

#include "model/check/Finding.h"
#include "model/check/Punch.h"

#include <cstdint>
#include <span>
#include <string>

namespace ptk {

// The finding lasts from the first start to the latest end. REQUIRES: at least one punch, all readable, ordered by start, end and number.
[[nodiscard]] Finding FindingOf(FindingKind kind, std::span<const Punch* const> punches, std::int64_t minutes, std::string text);

} // namespace ptk
