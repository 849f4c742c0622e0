// The edit trail inside a database file: data/trail.sql, whose triggers write down every change. Here is what a write of the program adds
// to it: who writes and why, and which changes belong together; and what a file of an earlier version is brought up to date with.
#pragma once

#include "store/engine/Author.h"

#include <cstdint>
#include <string>

namespace ptk {

class Engine;

// All that follow need the hold and no more than the transaction of the present write. Raise the engine's failures.
[[nodiscard]] bool HasTrail(Engine& engine);

// The newest structure of a file that this program knows: the number in its table _Structure.
inline constexpr std::int64_t kFileStructure = 2;

// Whether the file has all that the newest structure has: a trail with reasons, and what was paid.
[[nodiscard]] bool IsUpToDate(Engine& engine);

// The entries that follow are this one's.
void OpenStep(Engine& engine, const Author& author, std::int64_t step);

// They are nobody's any more.
void CloseStep(Engine& engine);

// A number that no entry has: its first entry's own.
[[nodiscard]] std::int64_t NextStep(Engine& engine);

// One entry of the step that is open, of no row. REQUIRES: the file has the trail.
void AddEntry(Engine& engine, const char* action, const std::string& file);

// Makes what is missing of it. REQUIRES: the tables of people's data are there.
void BringUpToDate(Engine& engine);

} // namespace ptk
