// The engine's way to the disk, on which windows live while the disk is slow.
#pragma once

namespace ptk {

// The name under which the engine knows it; made by the first to ask, so that what configures the engine comes before.
//
// Where the thread has turns to take (platform/Waiting), what makes bytes safe on the disk is done on a thread of its own, and is never
// given up; reading and writing take the turns that fall due, and one that gives up interrupts the statement that reads (9), which undoes a
// transaction that it belongs to. Elsewhere it is the system's own way.
[[nodiscard]] const char* PatientDisk();

} // namespace ptk
