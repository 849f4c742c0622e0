// What the program's own scripts put into a database file, to be held against what is in one.
#pragma once

#include <string>
#include <vector>

namespace ptk {

// A trigger or a view.
struct Routine
{
    std::string type; // "trigger" or "view"
    std::string name;
    std::string table; // or view, whose trigger it is; of a view its own name
    std::string text;  // as a file keeps it
};

struct OwnRoutines
{
    std::vector<Routine> routines; // by name
    std::vector<std::string> tables;
};

// Of a new file.
[[nodiscard]] OwnRoutines ReadOwnRoutines();

// Whether an earlier version of the program gave a routine this text: a file keeps it until its first write by a later one.
[[nodiscard]] bool IsOfEarlierVersion(const Routine& routine);

} // namespace ptk
