// Reads what a user may type for a time of day and for a date.
#pragma once

#include "platform/text/DateTime.h"

#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// Reads a time of day, on the zero date: 17, 830, 0830, 8.30, 8:30, 8:30:15, each also with a, p, am or pm. One or two digits are the hour.
[[nodiscard]] std::optional<DateTime> ReadTypedTime(std::string_view text);

// Reads a day, at midnight: whatever reads as a date, or month and day of today's year ("3/5", "3-5").
[[nodiscard]] std::optional<DateTime> ReadTypedDate(std::string_view text, DateTime today);

// The text of a box and the moment that it was read as: read once, and passed on instead of the text.
struct TypedMoment
{
    std::string text;
    std::optional<DateTime> moment; // nothing: the text is empty or cannot be read

    [[nodiscard]] bool Empty() const { return text.empty(); }
};

[[nodiscard]] TypedMoment TypedTime(std::string text);

// Reads what ReadTypedDate reads, and anything else that ParseDateTime reads: a date with a time of day, or a time alone, on the zero date.
[[nodiscard]] TypedMoment TypedDate(std::string text, DateTime today);

// The moment of a day and a time in two boxes. Where one is empty, the other counts alone: no time is midnight, no day the zero day. Raises
// Failure 13 where both are empty, one cannot be read, or two times stand there.
[[nodiscard]] DateTime Together(const TypedMoment& day, const TypedMoment& time);

} // namespace ptk
