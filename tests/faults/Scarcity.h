// Lets the machine run out of something in the middle of the work: memory, or what reading takes. Calls fail in the whole program, also
// those of the database's engine and the standard library.
#pragma once

#include <cstdint>

namespace ptk {

enum class Scarce : std::uint8_t
{
    Memory,       // the engine's included
    EngineMemory, // of the engine alone
    Read,         // fails as on a damaged disk
    ShortRead,    // answers one byte where more were asked for, which is no failure
    Interrupted,
    Open,      // too many files are open
    Forbidden, // a file may not be opened
    Lock,
    Look // asking what a path or a file is
};

// To be called before anything allocates memory for the engine.
void WatchMemoryOfEngine();

// Lets the `call`th call of that kind from now on fail, and with `all` each after it, until Plenty.
void RunOut(Scarce what, std::int64_t call, bool all);
void Plenty();

// Whether a call has failed since RunOut; and how many calls of the kind the last Plenty counted, up to the first that failed.
[[nodiscard]] bool HasRunOut();
[[nodiscard]] std::int64_t CallsSeen();

} // namespace ptk
