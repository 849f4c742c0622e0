// The one place where raised failures become answers: every failure turns into false, and a number or a reason.
#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <type_traits>

namespace ptk {

// Runs the step and answers what it answers (true if it answers nothing). When it raises anything, `told` gets the failure and the answer
// is false. `told` itself should raise nothing: nothing catches that.
template <typename Step, typename Told>
bool Succeeds(Step step, Told told)
{
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Step>>) {
            step();
            return true;
        } else {
            return step();
        }
    } catch (...) {
        told(CurrentFailure());
        return false;
    }
}

// Runs the step; false when it raised anything, and the failure is lost: for callers such as event handlers, which tell of the false.
template <typename Step>
bool Succeeds(Step step)
{
    return Succeeds(step, [](const Failure&) {});
}

// Runs the step; when it raises anything, leaves `number` in `errorNumber` and answers false.
template <typename Step>
bool SucceedsOr(std::int32_t number, std::int32_t& errorNumber, Step step)
{
    return Succeeds(step, [&](const Failure&) { errorNumber = number; });
}

} // namespace ptk
