// What is to be done about a database that somebody else has.
#pragma once

namespace ptk {

enum class WhenHeld
{
    Wait,  // up to a second, for a server up to five
    Refuse // at once, of a server after a second
};

} // namespace ptk
