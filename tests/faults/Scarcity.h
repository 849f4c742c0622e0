// A machine that runs out of something in the middle of the work: memory, or what reading takes. The whole program meets it, the database's
// engine and the standard library included.
#pragma once

#include <cstdint>

namespace ptk {

enum class Scarce : std::uint8_t
{
    Memory,       // the engine's included
    EngineMemory, // alone
    Read,         // fails as on a damaged disk
    ShortRead,    // answers one byte where more were asked for, which is no failure
    Interrupted,
    Open,      // too many files
    Forbidden, // to open
    Lock,
    Look // at what a path or a file is
};

// Before main's first statement that allocates anything for the engine.
void WatchMemoryOfEngine();

// The `call`th call of that kind from now on fails, and with `all` each after it, until Plenty.
void RunOut(Scarce what, std::int64_t call, bool all);
void Plenty();

// Whether one failed since RunOut, and how many of the kind there were until Plenty or the first that failed.
[[nodiscard]] bool HasRunOut();
[[nodiscard]] std::int64_t CallsSeen();

} // namespace ptk
