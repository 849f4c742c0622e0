// Every call of this program that changes something on a disk, counted, and the one at which a misfortune happens.
#pragma once

namespace ptk {

enum class Misfortune
{
    Killed,     // in front of the call, as by kill -9
    KilledHalf, // with half of its bytes written
    DiskFull,   // from there on: what needs room fails
    // At all calls of one kind, the others are well:
    FolderUnsafe, // folders cannot be flushed
    NoLocks,      // files cannot be locked
    NothingRuns   // programs cannot be run
};

// From now on, in this process: at the call of this number, from 1.
void MeetMisfortune(Misfortune kind, int call);

// Whether that call has come.
[[nodiscard]] bool MisfortuneMet();

} // namespace ptk
