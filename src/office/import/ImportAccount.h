// The account of an import: what was found under which names, what was taken, what was not, and why.
#pragma once

#include "store/import/ImportWriter.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ptk {

struct TableAccount
{
    std::string from; // the older table's name; empty where there is none
    std::int64_t found = 0;
    std::int64_t taken = 0;
    std::map<std::string, std::int64_t> leftOut; // by reason

    [[nodiscard]] std::int64_t LeftOut() const { return found - taken; }
};

struct ImportAccount
{
    std::string file;
    std::array<TableAccount, kImportTableCount> tables; // by ImportTableId
    std::vector<std::string> otherTables;               // tables of which nothing is taken
    std::vector<std::string> furtherColumns;
    ImportFigures figures;
    std::map<std::int32_t, std::string> names; // of employees, by EmployeeID
    std::int64_t bytesBehind = 0;              // behind the file's last page
    std::vector<std::string> signs;            // of damage, a few words each
};

// The account's lines, without line ends.
[[nodiscard]] std::vector<std::string> AccountLines(const ImportAccount& account);

} // namespace ptk
