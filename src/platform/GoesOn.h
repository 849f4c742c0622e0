// How a long work asks whether it is still wanted.
#pragma once

#include <functional>

namespace ptk {

// Answers whether the work is to go on; false ends it. The one that takes such a function says how often it calls it.
using GoesOn = std::function<bool()>;

} // namespace ptk
