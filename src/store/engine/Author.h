// Who writes and why, as the edit trail tells it.
#pragma once

#include <string>

namespace ptk {

// An empty text is told as nothing, as another tool's writes are.
struct Author
{
    std::string name;     // of the person, or the account
    std::string program;  // "ptk-admin" or "ptk-console"
    std::string reason{}; // what the person says to it
};

} // namespace ptk
