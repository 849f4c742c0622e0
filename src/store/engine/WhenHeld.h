// What to do about a database that somebody else has.
#pragma once

namespace ptk {

enum class WhenHeld
{
    Wait,  // up to a second for a file, up to five for a server
    Refuse // at once for a file, after a second for a server
};

} // namespace ptk
