// Looks whether a database, a file or a server's, is sound and is one of this program.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

struct DatabaseCheck
{
    std::vector<std::string> problems; // one sentence each; none for a sound database
    std::int32_t companies = 0;
    std::int32_t employees = 0;
    std::int32_t timeRecords = 0;
};

// Finds damage, missing identification, missing or differently typed tables and columns, missing or unusable stored queries, an options
// table of not exactly one row, and in any row whatever the program could not use, by table, key, column and value: all that would stop a
// start or a time card; also an edit trail of a file that tells nothing, and triggers of others. A file takes 30 seconds and one for each 4
// MiB at most, and says so where that was not enough. `path`: a file, or the address of a server's database, see ServerChecker. Raises what
// opening the database raises.
[[nodiscard]] DatabaseCheck CheckDatabase(const std::string& path);

} // namespace ptk
