// Counts what is older than a number of years; its owner decides whether and when to remove it.
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

// Counts rows dated before the day `years` years before today: time records by their start, closings by the last day of their period,
// changes of the history by their moment, and employees by the day of their release. Tables come in this order, the years of each in
// ascending order. Rows without a readable date are not counted. Raises what opening and reading the database raises. REQUIRES: 0 <= years
// <= 1000.
[[nodiscard]] KeptAccount ReadKept(const std::shared_ptr<CJetDB>& database, std::int32_t years, DateTime today);

// The account's lines, without line ends: the day, then the number of rows for each table and year.
[[nodiscard]] std::vector<std::string> KeptLines(const KeptAccount& account);

} // namespace ptk
