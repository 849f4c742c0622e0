// Days and times as they may stand in a file of punches. Narrower than what may be typed: nobody looks at each line and sees what became of
// it.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <string_view>

namespace ptk {

// YYYY-MM-DD, M/D/YYYY, M-D-YYYY or either of these with a year of two digits (00 to 29 are 2000 to 2029, else 19..); the month before the
// day.
[[nodiscard]] std::optional<DateTime> ReadSheetDay(std::string_view text);

// H:MM or H:MM:SS of 24 hours, or of 12 with AM or PM behind; on the zero date.
[[nodiscard]] std::optional<DateTime> ReadSheetTime(std::string_view text);

// A day, a blank or T, a time.
[[nodiscard]] std::optional<DateTime> ReadSheetMoment(std::string_view text);

// A time on a day.
[[nodiscard]] DateTime OnDay(DateTime day, DateTime time);

} // namespace ptk
