// How a long work asks whether it is still wanted.
#pragma once

#include <functional>

namespace ptk {

// False ends the work. Whoever asks says how often.
using GoesOn = std::function<bool()>;

} // namespace ptk
