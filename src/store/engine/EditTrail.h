// The edit trail inside a database file: data/trail.sql, whose triggers write down every change. Here is what a write of the program adds
// to it: who writes, and which changes belong together.
#pragma once

#include <cstdint>
#include <string>

namespace ptk {

class Engine;

// Who writes, as the entries tell it. An empty text is told as nothing, as another tool's writes are.
struct Author
{
    std::string name;    // of the person, or the account
    std::string program; // "ptk-admin" or "ptk-console"
};

// All of these need the hold and no more than the transaction of the present write. Raise the engine's failures.
// Files of earlier versions lack it.
[[nodiscard]] bool HasTrail(Engine& engine);

// The entries that follow are this one's.
void OpenStep(Engine& engine, const Author& author, std::int64_t step);

// They are nobody's any more.
void CloseStep(Engine& engine);

// A number that no entry has: its first entry's own.
[[nodiscard]] std::int64_t NextStep(Engine& engine);

// And the table _CheckLimits, where it is missing.
void InstallTrail(Engine& engine);

} // namespace ptk
