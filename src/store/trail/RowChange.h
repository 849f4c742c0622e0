// Changes of rows as the edit trail tells them, and their undoing.
#pragma once

#include "store/trail/TrailReader.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptk {

class Engine;

// A change of one row. Without `before` the row was added, without `after` it was deleted. With both, they hold the columns that changed,
// with the values as they are, passwords included.
struct RowChange
{
    std::string table; // TimeRecord, Employee, Company or _Payday
    std::int64_t row = 0;
    std::optional<TrailRow> before;
    std::optional<TrailRow> after;
};

// The changes that take these back, the last one first.
[[nodiscard]] std::vector<RowChange> Inverse(const std::vector<RowChange>& changes);

// The steps whose changes of a row do not count as somebody else's.
struct KnownSteps
{
    std::int64_t newerThan = 0; // number of an entry; this one and older ones are known
    std::set<std::int64_t> steps;
};

// Does these changes, as steps of Engine::Write. Raises RowChanged when a row is not as the change begins with, when an entry of the trail
// tells that somebody else changed it meanwhile, or when others rely on a row that is to go. A row that comes back has its number again. Up
// to 200 rows of one kind of change are asked about together. Added or deleted ones take one statement together, others one each.
void Apply(Engine& engine, const std::vector<RowChange>& changes, const KnownSteps& known);

} // namespace ptk
