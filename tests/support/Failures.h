// Answers which failure an action raises.
#pragma once

#include "platform/Failure.h"

#include <string>

namespace ptk {

// The number of the failure that the action raises; 0 when it raises none.
std::int32_t FailureOf(const auto& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

// What the failure that the action raises says; empty when it raises none.
std::string FailureTextOf(const auto& action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Description();
    }
    return "";
}

} // namespace ptk
