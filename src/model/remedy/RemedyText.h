// The words of the remedies: what each does, before it is done.
#pragma once

#include "model/check/Punch.h"
#include "platform/text/DateTime.h"

#include <optional>
#include <string>
#include <vector>

namespace ptk {

// "End at 04:30 PM", "End at 06:00:15 AM on 03/06/2026": seconds and the day where they say something. `shift` as it is now.
[[nodiscard]] std::string EndAtText(const Punch& shift, DateTime end);

// Of the first of two shifts that overlap.
[[nodiscard]] std::string EndFirstText(const Punch& first, DateTime end);

[[nodiscard]] std::string SplitText(const std::vector<DateTime>& midnights);
[[nodiscard]] std::string DeleteText();
[[nodiscard]] std::string DeleteShiftText(const Punch& shift);

// Of one of two that start together.
[[nodiscard]] std::string DeleteEndingText(const Punch& record);

// "...: the card has 80.30 hours"; without hours the card cannot be computed.
[[nodiscard]] std::string WithHours(const std::string& what, const std::optional<std::string>& hours);

} // namespace ptk
