// The one edge between what is raised below and what is answered above: every failure becomes false, and a number or a reason.
#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <type_traits>

namespace ptk {

// The answer of a step (true for one that answers nothing); false when it raised anything, which is handed to `told` first. `told` itself
// should raise nothing: nothing holds that back.
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

// For event handlers and others, whose users are told of the false itself.
template <typename Step>
bool Succeeds(Step step)
{
    return Succeeds(step, [](const Failure&) {});
}

// Leaves `number` in `errorNumber` when the step raised anything.
template <typename Step>
bool SucceedsOr(std::int32_t number, std::int32_t& errorNumber, Step step)
{
    return Succeeds(step, [&](const Failure&) { errorNumber = number; });
}

} // namespace ptk
