// Finds the program's tables in an older database file, whatever names they have there.
#pragma once

#include "office/import/OldFile.h"
#include "store/import/ImportTables.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ptk {

// Where the rows of one of the program's tables come from.
struct OldSource
{
    std::string name; // of the older table
    OldRowsOrder order;
    std::vector<std::optional<std::size_t>> places; // of each column of the program's table among the ordered values; none if it is missing
};

struct OldSources
{
    std::array<std::optional<OldSource>, kImportTableCount> tables; // by ImportTableId; only that of the options may be missing
    std::vector<std::string> otherTables;
    std::vector<std::string> furtherColumns; // "Notes of Employees"
};

// Finds the sources in the catalog. Employees and companies are recognized by most of their columns, time records and options by their
// table's name. Raises a failure without a number that names what is missing, cannot be read, or is there more than once.
[[nodiscard]] OldSources FindSources(const OldCatalog& catalog);

} // namespace ptk
