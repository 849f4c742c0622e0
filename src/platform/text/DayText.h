// A day and a moment as texts, the same everywhere in the program.
#pragma once

#include "platform/text/DateTime.h"

#include <string>

namespace ptk {

// For people: "03/05/2003", and to the minute "03/05/2003 08:05 AM".
[[nodiscard]] std::string DayText(DateTime day);
[[nodiscard]] std::string MomentText(DateTime moment);

// For programs: "2003-03-05" and "2003-03-05T08:05:09".
[[nodiscard]] std::string IsoDay(DateTime day);
[[nodiscard]] std::string IsoMoment(DateTime moment);

} // namespace ptk
