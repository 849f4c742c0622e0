// The triggers, views and tables that the program's own scripts make in a database file, for a comparison with those of a file in use.
#pragma once

#include <string>
#include <vector>

namespace ptk {

struct Routine
{
    std::string type; // "trigger" or "view"
    std::string name;
    std::string table; // the table or view that a trigger is on; for a view its own name
    std::string text;  // its CREATE statement as a file keeps it
};

struct OwnRoutines
{
    std::vector<Routine> routines; // sorted by name
    std::vector<std::string> tables;
};

// The routines and tables of a new file.
[[nodiscard]] OwnRoutines ReadOwnRoutines();

// Whether an earlier version of the program gave the routine this text. A file keeps such a text until a later version first writes to it.
[[nodiscard]] bool IsOfEarlierVersion(const Routine& routine);

} // namespace ptk
