// A time record as its row is stored, whether its times can be read or not: one pair of clock-in and clock-out times.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

[[nodiscard]] inline bool IsSet(const std::optional<DateTime>& time)
{
    return time && !time->IsZero();
}

struct Punch
{
    std::int64_t id = 0;
    std::optional<DateTime> start; // empty: not the text of a real moment; the zero date-time: not set
    std::optional<DateTime> end;   // empty: not the text of a real moment; the zero date-time: still running
    bool fetched = false;          // whether the time card's own fetch takes the row
    std::string startText;         // what is stored where `start` cannot be read: "soon" in quotes, 46000 without; empty for nothing
    std::string endText;

    // Whether both times are real moments and the start is set. The members below REQUIRE it.
    [[nodiscard]] bool IsReadable() const { return IsSet(start) && end; }

    [[nodiscard]] bool IsOpen() const { return end->IsZero(); }
    [[nodiscard]] bool IsBackward() const { return !IsOpen() && *end < *start; }
    [[nodiscard]] bool IsClosed() const { return !IsOpen() && *end >= *start; }

    // Whole minutes, seconds cut off both ends; 0 for a shift that is open or ends before it starts.
    [[nodiscard]] std::int64_t Minutes() const { return IsClosed() ? MinutesBetween(*start, *end) : 0; }
};

using Punches = std::vector<Punch>;

} // namespace ptk
