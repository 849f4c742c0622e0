// A list of texts; Find compares the whole text, letter case included.
#pragma once

#include "shell/KeyedList.h"

#include <string>

namespace ptk {

class CStringList final : public KeyedList<std::string>
{
};

} // namespace ptk
