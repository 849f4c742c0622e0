// What a user may type for a time of day and for a date.
#pragma once

#include "platform/DateTime.h"

#include <optional>
#include <string_view>

namespace ptk {

// A time of day on the zero date: 17, 830, 0830, 8.30, 8:30, 8:30:15, each with a, p, am or pm behind it. One or two digits are the hour.
std::optional<DateTime> ReadTypedTime(std::string_view text);

// A day at midnight: whatever reads as a date, or month and day of today's year ("3/5", "3-5").
std::optional<DateTime> ReadTypedDate(std::string_view text, DateTime today);

} // namespace ptk
