// The folders beside the database that may hold something about a person.
#pragma once

#include <string>

namespace ptk {

struct PersonPlaces
{
    std::string programFolder;
    std::string secondFolder; // of copies of the backups; empty: none
};

} // namespace ptk
