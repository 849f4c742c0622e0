// The text form of date-times in the database file: YYYY-MM-DD HH:MM:SS, so that text order is time order and any tool can read it.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// The stored text of a date-time; that of the zero date-time is 1899-12-30 00:00:00.
[[nodiscard]] std::string StoredText(DateTime value);

// The date-time of a stored text; empty for every other form, dates that do not exist and years below 100. Does not allocate.
[[nodiscard]] std::optional<DateTime> FromStoredText(std::string_view text);

} // namespace ptk
