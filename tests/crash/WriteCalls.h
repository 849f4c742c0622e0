// Counts the calls of this program that change something on a disk, and lets a misfortune happen at one of them.
#pragma once

namespace ptk {

enum class Misfortune
{
    Killed,     // before the call, as by kill -9
    KilledHalf, // once half of the call's bytes are written
    DiskFull,   // from that call on, each that needs room fails
    // For these the number does not matter: all calls of one kind fail, the others succeed.
    FolderUnsafe, // folders cannot be flushed
    NoLocks,      // files cannot be locked
    NothingRuns   // programs cannot be run
};

// Lets the misfortune happen in this process, at the `call`th call from now on. Calls count from 1; 0: nothing happens.
void MeetMisfortune(Misfortune kind, int call);

// Whether the misfortune has happened since the last MeetMisfortune.
[[nodiscard]] bool MisfortuneMet();

} // namespace ptk
