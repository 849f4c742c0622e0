// Stands for the enumerations that the program shares; it exists from the first step of a session to the last and holds nothing.
#pragma once

namespace ptk {

class CEnumHolder
{
};

} // namespace ptk
