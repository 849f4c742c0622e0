// The edit trail inside a database file (data/trail.sql), whose triggers write down every change. A write of the program adds who writes
// and why, and which changes belong together. BringUpToDate makes what a file of an earlier version lacks.
#pragma once

#include "store/engine/Author.h"

#include <cstdint>
#include <string>

namespace ptk {

class Engine;

// Whether the file has the trail's tables. All functions here need the hold, stay within the transaction of the present write, and raise
// the engine's failures.
[[nodiscard]] bool HasTrail(Engine& engine);

// The newest structure of a file that this program knows: the number in its table _Structure.
inline constexpr std::int64_t kFileStructure = 2;

// Whether the file has all that the newest structure has: a trail with reasons, and what was paid.
[[nodiscard]] bool IsUpToDate(Engine& engine);

// Signs the entries that follow, until CloseStep: they are this author's and belong to this step.
void OpenStep(Engine& engine, const Author& author, std::int64_t step);

// Ends the step: entries that follow have no author and no step.
void CloseStep(Engine& engine);

// The number for a new step, which no entry has yet: the number that its first entry will have.
[[nodiscard]] std::int64_t NextStep(Engine& engine);

// Adds one entry of the open step that is about the whole database, with the name of a file. REQUIRES: the file has the trail.
void AddEntry(Engine& engine, const char* action, const std::string& file);

// Makes what the file lacks of the newest structure. REQUIRES: the tables of people's data are there.
void BringUpToDate(Engine& engine);

} // namespace ptk
