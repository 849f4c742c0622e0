// Who changes the database and why, as the edit trail records it.
#pragma once

#include <string>

namespace ptk {

// The edit trail stores an empty text as null, as for other tools' writes.
struct Author
{
    std::string name;     // the person's, or the account's
    std::string program;  // "ptk-admin" or "ptk-console"
    std::string reason{}; // what the person gives as the reason
};

} // namespace ptk
