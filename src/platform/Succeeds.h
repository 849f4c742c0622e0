// For event handlers, which nothing may escape.
#pragma once

namespace ptk {

// The answer of a step, false also when it raised anything.
template <typename Step>
bool Succeeds(Step step)
{
    try {
        return step();
    } catch (...) {
        return false;
    }
}

} // namespace ptk
