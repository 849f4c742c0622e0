// What is to be done about a file that somebody else has.
#pragma once

namespace ptk {

enum class WhenHeld
{
    Wait,  // up to a second
    Refuse // at once
};

} // namespace ptk
