// Reads days and times in a file of punches. Fewer forms are taken than people may type, because nobody sees what becomes of each line.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <string_view>

namespace ptk {

// Reads YYYY-MM-DD, M/D/YYYY or M-D-YYYY; with the month first, the year may have two digits (00 to 29 are 2000 to 2029, others 19..).
[[nodiscard]] std::optional<DateTime> ReadSheetDay(std::string_view text);

// Reads H:MM or H:MM:SS, of 24 hours, or of 12 with AM or PM behind; the answer is on the zero date.
[[nodiscard]] std::optional<DateTime> ReadSheetTime(std::string_view text);

// Reads a day, a blank or T, and a time.
[[nodiscard]] std::optional<DateTime> ReadSheetMoment(std::string_view text);

// The time of day of `time`, on `day`.
[[nodiscard]] DateTime OnDay(DateTime day, DateTime time);

} // namespace ptk
