// Changes of rows as the edit trail tells them, to be done backwards.
#pragma once

#include "store/trail/TrailReader.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace ptk {

class Engine;

// Without `before` a row was added, without `after` deleted; with both, they hold the columns that changed, values and all: passwords as
// they are.
struct RowChange
{
    std::string table; // TimeRecord, Employee, Company or _Payday
    std::int64_t row = 0;
    std::optional<TrailRow> before;
    std::optional<TrailRow> after;
};

// What takes these changes back, the last one first.
[[nodiscard]] std::vector<RowChange> Inverse(const std::vector<RowChange>& changes);

// Whose changes of a row do not count as somebody else's.
struct KnownSteps
{
    std::int64_t newerThan = 0; // a number of an entry: what is not newer is known
    std::set<std::int64_t> steps;
};

// As steps of Engine::Write: does these changes. Raises RowChanged when a row is not as they begin with, or an entry of the trail tells
// that somebody else changed it meanwhile, or others rely on a row that is to go. A row that comes back has its number again. Up to 200
// rows that are added or deleted together are asked about together and changed by one statement; others take one more each.
void Redo(Engine& engine, const std::vector<RowChange>& changes, const KnownSteps& known);

} // namespace ptk
