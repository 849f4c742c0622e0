// Every conversion between values and text. All of it is US English and independent of the process locale.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ptk {

// The general text of a date-time, as SQL literals and the log carry it: "3/5/2003 8:05:09 AM"; without the time at exactly midnight,
// without the date on the zero date ("12:00:00 AM" for the zero date-time itself).
[[nodiscard]] std::string GeneralText(DateTime value);

// The date alone: "3/5/2003".
[[nodiscard]] std::string ShortDateText(DateTime value);

// The date-time in a pattern of these tokens: d dd m mm yy yyyy h hh n nn s ss AM/PM (12 hours when AM/PM is present). "m" or "mm" directly
// after hours means minutes; anything else stands for itself. "mm/dd/yyyy hh:mm AM/PM" gives "03/05/2003 08:00 AM".
[[nodiscard]] std::string FormatDateTime(DateTime value, std::string_view pattern);

// Adds what FormatDateTime gives to the end of `out`.
void AppendDateTime(std::string& out, DateTime value, std::string_view pattern);

// Reads a date-time: month/day/year with "/" or "-" (years of up to two digits: 00-29 are 2000-2029, 30-99 are 1930-1999), year first,
// month names, times of 24 hours or with AM/PM, a date alone or a time alone (on the zero date), blanks around. Day and month change places
// where only that is a date. Empty for anything else, a bare number included. Reads all that GeneralText writes, to the same second.
[[nodiscard]] std::optional<DateTime> ParseDateTime(std::string_view text);

// Reads what ParseDateTime reads; raises Failure 13 for anything else.
[[nodiscard]] DateTime ToDateTime(std::string_view text);

// Read a number; blanks around it are allowed, fractions round half to even. Raise Failure 13 for no number, 6 for one that does not fit.
[[nodiscard]] std::int16_t ToInt16(std::string_view text);
[[nodiscard]] std::int32_t ToInt32(std::string_view text);
[[nodiscard]] float ToSingle(std::string_view text);
[[nodiscard]] double ToDouble(std::string_view text);

// Reads True or False in any letter case, or a number (non-zero is true).
[[nodiscard]] bool ToBoolean(std::string_view text);

// The shortest decimal text that reads back to the same value, never with an exponent: "8", "7.8333335", "12.3", "-0.5".
[[nodiscard]] std::string SingleText(float value);
[[nodiscard]] std::string DoubleText(double value);

// "True" or "False".
[[nodiscard]] std::string BooleanText(bool value);

// A number as the patterns "#0.00" and "##0.00" show it: its shortest decimal text rounded to two decimals, ties away from zero, with at
// least one integer digit, never "-0.00".
[[nodiscard]] std::string TwoDecimals(float value);

// Minutes as hours and minutes: "8:30", "-0:15".
[[nodiscard]] std::string HoursAndMinutes(std::int64_t minutes);

// The text in small letters: A to Z only; other characters stay as they are.
[[nodiscard]] std::string LowerCase(std::string_view text);

// The number of characters (code points) of UTF-8 text, as column widths count them.
[[nodiscard]] std::size_t CharacterCount(std::string_view utf8);

} // namespace ptk
