// Finding the program's tables in an older database file, whatever they are called there.
#pragma once

#include "office/import/OldFile.h"
#include "store/import/ImportTables.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

// Where the rows of one table come from.
struct OldSource
{
    std::string name; // of the older table
    OldRowsOrder order;
    std::vector<std::optional<std::size_t>> places; // by column of the program's table: which of the ordered values; none where it lacks it
};

struct OldSources
{
    std::array<std::optional<OldSource>, kImportTableCount> tables; // by ImportTableId; only the options may lack
    std::vector<std::string> otherTables;
    std::vector<std::string> furtherColumns; // "Notes of Employees"
};

// Employees and companies are known by most of their columns, time records and options by their name. Raises a failure without a number
// that names what is missing, cannot be read, or is there more than once.
[[nodiscard]] OldSources FindSources(const OldCatalog& catalog);

} // namespace ptk
