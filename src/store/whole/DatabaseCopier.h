// Copies everything from one database into a new one, whatever keeps either of them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

struct CopiedTable
{
    const char* name = "";
    std::optional<std::int64_t> before; // rows of the source; nothing where it has no such table
    std::int64_t after = 0;             // rows of the copy
};

struct CopyAccount
{
    std::vector<CopiedTable> tables;
    std::vector<std::string> leftBehind; // tables and columns that are none of the program's
    std::string leftToDo;                // a sentence for the owner of the copy's server; empty where there is nothing to do
};

// Is called with how many of all rows are done; false ends the copy with 9. A copy of a file into a file does not call it.
using RowProgress = std::function<bool(std::int64_t done, std::int64_t all)>;

// Each name is a file's path in the platform's own form, or a server's address. The target is a file that is not there, or a server's
// database that has none of the program's tables: 75 where it is otherwise. The source is read as of one moment, in portions. Its keys and
// its trail are kept, and the numbers that it has given are not given again. A file goes into a file as it is, page by page, and is checked
// there. Otherwise the stored queries are the target's own, and a value that does not keep its meaning there raises a failure that names
// it. There is all of the copy or nothing. Raises what opening either of them raises.
[[nodiscard]] CopyAccount CopyDatabase(const std::string& from, const std::string& to, const RowProgress& progress = {});

} // namespace ptk
