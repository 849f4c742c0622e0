// What is older than so many years, in numbers: whether and when any of it is removed is for its owner to say.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ptk {

class CJetDB;

struct KeptRows
{
    std::string table;
    int year = 0;
    std::int64_t rows = 0;
};

struct KeptAccount
{
    DateTime before; // the first day that is not older
    std::vector<KeptRows> rows;
};

// Rows that are dated before the day `years` years before today: time records by their start, closings by the last day of their period,
// changes of the history by their moment, and employees by the day of their release; tables in this order, years in theirs. What has no
// date that can be read is not among them. Raises what opening and reading the database raises. REQUIRES: 0 <= years <= 1000.
[[nodiscard]] KeptAccount ReadKept(const std::shared_ptr<CJetDB>& database, std::int32_t years, DateTime today);

// One line each, without line ends: the day, then for each table and year how many.
[[nodiscard]] std::vector<std::string> KeptLines(const KeptAccount& account);

} // namespace ptk
