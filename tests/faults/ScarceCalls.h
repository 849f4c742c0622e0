// Tries some work again and again, with another call failing each time.
#pragma once

#include "faults/Scarcity.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iostream>

namespace ptk {

constexpr std::array kScarceNames{"Memory", "EngineMemory", "Read", "ShortRead", "Interrupted",
                                  "Open",   "Forbidden",    "Lock", "Look"}; // by Scarce

// How many calls of that kind `work` makes.
inline std::int64_t CallsOf(Scarce what, const std::function<void()>& work)
{
    constexpr std::int64_t kMostCalls = 2'000'000;
    RunOut(what, kMostCalls, false);
    work();
    Plenty();
    return CallsSeen();
}

// Calls `tryAt` for a sample of the calls after `first`: once to fail alone, once with all behind it. Each PTK_SCARCE-th where that is set.
inline void TryCalls(Scarce what, std::int64_t first, std::int64_t calls, std::int64_t sample,
                     const std::function<void(std::int64_t call, bool all)>& tryAt)
{
    const char* const wanted = std::getenv("PTK_SCARCE");
    const std::int64_t step = wanted != nullptr ? std::atoll(wanted) : std::max<std::int64_t>(1, (calls - first) / sample);
    int tried = 0;
    for (const bool all : {false, true}) {
        if (all && what == Scarce::Interrupted) {
            continue; // a read that is always interrupted would be tried without end
        }
        for (std::int64_t call = first + 1 + step / 3; call <= calls && !testing::Test::HasFailure(); call += step) {
            SCOPED_TRACE(testing::Message() << kScarceNames.at(static_cast<std::size_t>(what)) << " at call " << call
                                            << (all ? " and all behind it" : ""));
            tryAt(call, all);
            ++tried;
        }
    }
    std::cout << kScarceNames.at(static_cast<std::size_t>(what)) << ": " << std::max<std::int64_t>(0, calls - first) << " calls, " << tried
              << " tried\n";
}

} // namespace ptk
