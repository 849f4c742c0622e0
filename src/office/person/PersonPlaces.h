// The folders beside the database in which something about a person may lie.
#pragma once

#include <string>

namespace ptk {

struct PersonPlaces
{
    std::string programFolder;
    std::string secondFolder; // of copies of the backups; empty: none
};

} // namespace ptk
