// Looks whether a database file is sound and is one of this program.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ptk {

struct DatabaseCheck
{
    std::vector<std::string> problems; // one sentence each; none for a sound file
    std::int32_t companies = 0;
    std::int32_t employees = 0;
    std::int32_t timeRecords = 0;
};

// Damage, foreign or missing identification, missing or differently typed tables and columns, missing or unusable stored queries, an
// options table of not exactly one row. Raises what opening the file raises.
DatabaseCheck CheckDatabase(const std::string& path);

} // namespace ptk
