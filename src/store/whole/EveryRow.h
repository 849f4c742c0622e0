// Reading any number of rows in the memory of a portion of them.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace ptk {

class Engine;
class RecordSet;
class Statement;

// Calls for each row of a select in the engine's own words; `row` stands at it. Raises the engine's failures.
void ForEachRowOf(Engine& engine, const std::string& select, const std::function<void(const Statement& row)>& take);

// The same in record sets, of which the last may have no rows.
void ForEachPortionOf(Engine& engine, const std::string& select, const std::function<void(RecordSet& rows)>& take);

} // namespace ptk
