// Stands for the enumerations that the program shares; it exists from the first step of the program to the last and holds nothing.
#pragma once

namespace ptk {

class CEnumHolder
{
};

} // namespace ptk
