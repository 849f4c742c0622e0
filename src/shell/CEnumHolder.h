// Stands for the enumerations that the program shares. It lives from the program's first step to its last and holds nothing.
#pragma once

namespace ptk {

class CEnumHolder
{
};

} // namespace ptk
