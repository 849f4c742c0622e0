// A clock for time limits: good to some milliseconds, and so cheap that every step of a loop may ask it.
#pragma once

#include <chrono>
#include <ctime>

namespace ptk {

using CoarseTime = std::chrono::steady_clock::time_point;

// The present time, never ahead of the steady clock and behind it by less than 10 milliseconds.
[[nodiscard]] inline CoarseTime CoarseNow()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return CoarseTime(std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec));
}

} // namespace ptk
