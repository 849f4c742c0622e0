// The words in which remedies are offered: what each would do.
#pragma once

#include "model/check/Punch.h"
#include "platform/text/DateTime.h"

#include <optional>
#include <string>
#include <vector>

namespace ptk {

// "End at 04:30 PM", "End at 06:00:15 AM on 03/06/2026": seconds where they are not 0, the day where it is not that of
// the shift's start. `shift` is as it is before the remedy.
[[nodiscard]] std::string EndAtText(const Punch& shift, DateTime end);

// "End the first shift at 04:30 PM": for two shifts that overlap.
[[nodiscard]] std::string EndFirstText(const Punch& first, DateTime end);

[[nodiscard]] std::string SplitText(const std::vector<DateTime>& midnights);
[[nodiscard]] std::string DeleteText();
[[nodiscard]] std::string DeleteShiftText(const Punch& shift);

// For one of two records with the same start.
[[nodiscard]] std::string DeleteEndingText(const Punch& record);

// "...: the card has 80.30 hours"; without hours it says that the card still has a record that cannot be read.
[[nodiscard]] std::string WithHours(const std::string& what, const std::optional<std::string>& hours);

} // namespace ptk
