// The edit trail as the program reads it.
#pragma once

#include "platform/text/DateTime.h"

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ptk {

class CJetDB;

// What a column held: a text as it is, a number by its digits, bytes by two hexadecimal digits each.
struct TrailValue
{
    enum class Kind : std::uint8_t
    {
        Null,
        Number,
        Text,
        Bytes
    };

    std::string column;
    Kind kind = Kind::Null;
    std::string text;
};

using TrailRow = std::vector<TrailValue>; // columns in the table's order

// The value of that column; nullptr where the row does not tell it.
[[nodiscard]] const TrailValue* ValueOf(const TrailRow& row, std::string_view column);

struct TrailEntry
{
    std::int64_t id = 0;
    std::string at; // YYYY-MM-DD HH:MM:SS
    std::string by; // empty for another tool, like program and step
    std::string program;
    std::optional<std::int64_t> step;
    std::string table; // empty where no table is meant
    std::optional<std::int64_t> row;
    std::string action; // insert, update, delete, import, restore
    std::optional<TrailRow> before;
    std::optional<TrailRow> after;
    std::optional<std::int64_t> employee; // the employee whose row or record it is or was
    std::string reason;                   // empty without one
};

enum class TrailKind : std::uint8_t
{
    TimeRecords,
    People, // of the table Employee
    Companies,
    Options, // also those of the check
    Paydays,
    Whole // restores and imports
};

// A range of days, both included.
struct TrailDays
{
    DateTime first;
    DateTime last;
};

struct TrailQuery
{
    std::optional<std::int64_t> employee; // whose row it is, or whose record it was before or after
    std::optional<DateTime> from;         // days of the change, both included
    std::optional<DateTime> to;
    std::optional<std::int64_t> step;
    std::int64_t newerThan = 0; // numbers of entries, these excluded
    std::optional<std::int64_t> olderThan;
    std::optional<std::string> person; // who changed it; empty: another tool
    std::optional<TrailKind> kind;
    std::string action;                               // empty: any
    std::optional<std::vector<std::int64_t>> records; // time records alone, by their keys

    // Only entries about the employee's own row, and about every record that starts or ends in these days, or ever did. REQUIRES: employee.
    std::optional<TrailDays> recordsIn;

    std::int32_t most = std::numeric_limits<std::int32_t>::max();
};

// Reads the entries that a query asks for, newest first, by one question for each ten thousand. `take` must not use
// the database. Nothing in a file without a trail. Raises the failure of a database that cannot be opened or read. REQUIRES: database is
// not nullptr.
void ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query, const std::function<void(const TrailEntry&)>& take);
[[nodiscard]] std::vector<TrailEntry> ReadTrail(const std::shared_ptr<CJetDB>& database, const TrailQuery& query);

// What an entry is about, without the values that it tells.
struct TrailNote
{
    std::int64_t id = 0;
    std::optional<std::int64_t> step;
    std::string table;
    std::optional<std::int64_t> row;
    std::optional<std::int64_t> employeeBefore; // whose row it was, or whose record
    std::optional<std::int64_t> employeeAfter;
};

// The notes of the entries behind a number, newest first and `most` of them: one question, for those who ask again and again. Nothing in a
// file without a trail. Raises the failure of a database that cannot be opened or read.
[[nodiscard]] std::vector<TrailNote> ReadTrailNotes(const std::shared_ptr<CJetDB>& database, std::int64_t newerThan, std::int32_t most);

// Everybody whom an entry names, sorted by name. Raises the failure of a database that cannot be opened or read.
[[nodiscard]] std::vector<std::string> ReadTrailPersons(const std::shared_ptr<CJetDB>& database);

// The reasons of the newest changes, each once, the last one first; of some thousand changes, so that it costs the same in a long trail.
// Raises the failure of a database that cannot be opened or read.
[[nodiscard]] std::vector<std::string> ReadTrailReasons(const std::shared_ptr<CJetDB>& database, std::int32_t most);

} // namespace ptk
