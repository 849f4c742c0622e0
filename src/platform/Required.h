// Checks a reference that a step cannot do without.
#pragma once

#include "platform/Failure.h"

#include <memory>

namespace ptk {

// Answers the reference; raises Failure 91 when it is empty.
template <typename Object>
std::shared_ptr<Object> Required(std::shared_ptr<Object> object)
{
    if (object == nullptr) {
        throw Failure(failure::ObjectNotSet);
    }
    return object;
}

} // namespace ptk
